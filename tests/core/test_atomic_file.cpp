#include <gtest/gtest.h>

#include <sys/resource.h>
#include <unistd.h>

#include <algorithm>
#include <csignal>

#include "session/AtomicFile.h"

namespace fs = std::filesystem;

namespace qv {
namespace {

class AtomicFileTest : public ::testing::Test {
 protected:
  void SetUp() override {
    folder_ = fs::temp_directory_path() /
              ("quorvale-atomic-" + std::to_string(getpid()) + "-" +
               ::testing::UnitTest::GetInstance()->current_test_info()->name());
    fs::remove_all(folder_);
    fs::create_directories(folder_);
  }
  void TearDown() override { fs::remove_all(folder_); }

  // Shows any temporary file left behind.
  std::vector<std::string> Names() const {
    std::vector<std::string> names;
    for (const auto& entry : fs::directory_iterator(folder_)) names.push_back(entry.path().filename());
    std::sort(names.begin(), names.end());
    return names;
  }

  fs::path folder_;
};

TEST_F(AtomicFileTest, WritesAndReplacesLeavingOnlyTheTarget) {
  const fs::path file = folder_ / "a.ini";
  EXPECT_EQ(ReadWholeFile(file), std::nullopt);
  ASSERT_TRUE(WriteFileAtomically(file, "a first, longer content"));
  ASSERT_TRUE(WriteFileAtomically(file, std::string("x\0y\r\n", 5)));
  EXPECT_EQ(ReadWholeFile(file), std::string("x\0y\r\n", 5));
  ASSERT_TRUE(WriteFileAtomically(file, ""));
  EXPECT_EQ(ReadWholeFile(file), "");  // empty, which is not missing
  EXPECT_EQ(Names(), std::vector<std::string>{"a.ini"});
  EXPECT_EQ(ReadWholeFile(folder_), std::nullopt);  // opens, but does not read
}

TEST_F(AtomicFileTest, RefusedWriteSaysWhyAndLeavesNoTrace) {
  fs::create_directory(folder_ / "folder");
  ASSERT_TRUE(WriteFileAtomically(folder_ / "folder" / "inside", "kept"));
  ASSERT_TRUE(WriteFileAtomically(folder_ / "plain", "old"));

  std::string error;
  EXPECT_FALSE(WriteFileAtomically(folder_ / "folder", "new", &error));  // rename fails
  EXPECT_NE(error, "");
  error.clear();
  EXPECT_FALSE(WriteFileAtomically(folder_ / "plain" / "child", "new", &error));  // create fails
  EXPECT_NE(error, "");
  EXPECT_FALSE(WriteFileAtomically(folder_ / "missing" / "child", "new"));  // folders not made

  EXPECT_EQ(ReadWholeFile(folder_ / "folder" / "inside"), "kept");
  EXPECT_EQ(ReadWholeFile(folder_ / "plain"), "old");
  EXPECT_EQ(Names(), (std::vector<std::string>{"folder", "plain"}));
}

// A disk filling up halfway through, played with a file size limit, which binds
// root too.
TEST_F(AtomicFileTest, WriteFailingHalfwayKeepsTheOldFile) {
  const fs::path file = folder_ / "a.ini";
  ASSERT_TRUE(WriteFileAtomically(file, "old"));
  rlimit saved{};
  ASSERT_EQ(getrlimit(RLIMIT_FSIZE, &saved), 0);
  rlimit small = saved;
  small.rlim_cur = 10;
  const auto previousHandler = std::signal(SIGXFSZ, SIG_IGN);
  const bool limited = setrlimit(RLIMIT_FSIZE, &small) == 0;
  std::string error;
  const bool written = WriteFileAtomically(file, std::string(1000, 'n'), &error);
  setrlimit(RLIMIT_FSIZE, &saved);
  std::signal(SIGXFSZ, previousHandler);

  ASSERT_TRUE(limited);
  EXPECT_FALSE(written);
  EXPECT_NE(error, "");
  EXPECT_EQ(ReadWholeFile(file), "old");
  EXPECT_EQ(Names(), std::vector<std::string>{"a.ini"});
}

}  // namespace
}  // namespace qv
