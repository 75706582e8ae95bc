#include <gtest/gtest.h>

#include <sys/resource.h>

#include <csignal>
#include <iterator>

#include "TestProgram.h"
#include "session/AtomicFile.h"

namespace fs = std::filesystem;

namespace qv {
namespace {

// What is in the folder, so that a temporary file left behind shows.
long Entries(const fs::path& folder) { return std::distance(fs::directory_iterator(folder), {}); }

TEST(AtomicFile, WritesAndReplacesLeavingOnlyTheTarget) {
  const test::TempHome home;
  const fs::path file = home.Path() / "a.ini";
  EXPECT_EQ(ReadWholeFile(file), std::nullopt);
  ASSERT_TRUE(WriteFileAtomically(file, "a first, longer content"));
  ASSERT_TRUE(WriteFileAtomically(file, std::string("x\0y\r\n", 5)));
  EXPECT_EQ(ReadWholeFile(file), std::string("x\0y\r\n", 5));
  ASSERT_TRUE(WriteFileAtomically(file, ""));
  EXPECT_EQ(ReadWholeFile(file), "");  // empty, which is not missing
  EXPECT_EQ(Entries(home.Path()), 1);
  EXPECT_EQ(ReadWholeFile(home.Path()), std::nullopt);  // a folder opens, but does not read
}

// A folder in the way of the rename, a file in the way of a folder, a folder not made,
// and a disk full halfway, played with a file size limit (which binds root too).
TEST(AtomicFile, RefusedWriteSaysWhyKeepsTheOldFileAndLeavesNoTrace) {
  const test::TempHome home;
  const fs::path folder = home.Path() / "folder", plain = home.Path() / "plain";
  fs::create_directory(folder);
  ASSERT_TRUE(WriteFileAtomically(folder / "inside", "kept"));
  ASSERT_TRUE(WriteFileAtomically(plain, "old"));
  rlimit saved{};
  ASSERT_EQ(getrlimit(RLIMIT_FSIZE, &saved), 0);
  const auto handler = std::signal(SIGXFSZ, SIG_IGN);
  for (const fs::path& target : {folder, plain / "child", home.Path() / "missing" / "child", plain}) {
    rlimit limit = saved;
    if (target == plain) limit.rlim_cur = 10;
    const bool limited = setrlimit(RLIMIT_FSIZE, &limit) == 0;
    std::string error;
    const bool written = WriteFileAtomically(target, std::string(1000, 'n'), &error);
    setrlimit(RLIMIT_FSIZE, &saved);
    EXPECT_FALSE(written) << target << (limited ? "" : ", with no size limit set");
    EXPECT_NE(error, "") << target;
  }
  std::signal(SIGXFSZ, handler);
  EXPECT_EQ(ReadWholeFile(folder / "inside"), "kept");
  EXPECT_EQ(ReadWholeFile(plain), "old");
  EXPECT_EQ(Entries(home.Path()), 2);
}

}  // namespace
}  // namespace qv
