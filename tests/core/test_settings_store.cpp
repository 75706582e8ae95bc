// The settings file: what reads back, what a damaged file becomes, what a refused write keeps,
// and how two programs share it.
#include <gtest/gtest.h>

#include <fcntl.h>
#include <sys/file.h>
#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/un.h>
#include <unistd.h>

#include <atomic>
#include <climits>
#include <cstdlib>
#include <fstream>
#include <thread>

#include "TestProgram.h"
#include "session/AtomicFile.h"
#include "settings/IniSettingsStore.h"

namespace fs = std::filesystem;

namespace qv {
namespace {

class IniSettingsTest : public ::testing::Test {
 protected:
  void Put(const std::string& bytes) {
    fs::create_directories(file_.parent_path());
    ASSERT_TRUE(WriteFileAtomically(file_, bytes));
  }
  std::string Disk(const std::string& suffix = "") const {
    return ReadWholeFile(file_.string() + suffix).value_or("<missing>");
  }

  test::TempHome home_;
  fs::path file_ = home_.Path() / "Quorvale" / "6.0" / "quorvale.ini";
};

// Whether some process or thread waits in flock() for the lock held on `file`: the kernel
// lists a blocked request with "->" before it.
bool SomeoneWaitsForLock(const fs::path& file) {
  struct stat info {};
  if (stat(file.c_str(), &info) != 0) return false;
  const std::string inode = ":" + std::to_string(info.st_ino) + " ";
  std::ifstream locks("/proc/locks");
  for (std::string line; std::getline(locks, line);)
    if (line.find("->") != std::string::npos && line.find(inode) != std::string::npos) return true;
  return false;
}

TEST_F(IniSettingsTest, ValuesRoundTripThroughTheFile) {
  const std::pair<std::string, int32_t> numbers[] = {{"Zero", 0}, {"Lowest", INT32_MIN}, {"Highest", INT32_MAX}};
  const std::pair<std::string, std::string> texts[] = {
      {"Empty", ""}, {"Tricky", "say \"hi\" C:\\dir\\\r\nnext \\n"}, {"Padded", "  both ends  "},
      {"Last Game Name", "Pik \xE2\x99\xA0 \xC3\x84rger"}};
  {
    IniSettingsStore store(file_);
    EXPECT_EQ(store.ReadInt("General", "Zero"), std::nullopt);
    EXPECT_TRUE(fs::is_empty(home_.Path()));  // reading creates nothing; the first write makes the folders
    for (const auto& [key, value] : numbers) ASSERT_TRUE(store.WriteInt("General", key, value));
    for (const auto& [key, value] : texts) ASSERT_TRUE(store.WriteText("Other", key, value));
  }
  const IniSettingsStore store(file_);
  for (const auto& [key, value] : numbers) EXPECT_EQ(store.ReadInt("General", key), value) << key;
  for (const auto& [key, value] : texts) EXPECT_EQ(store.ReadText("Other", key), value) << key;
  // Absent is not empty, a text is no number nor a number a text, and case counts.
  EXPECT_FALSE(store.ReadText("Other", "Missing") || store.ReadInt("Other", "Empty") || store.ReadText("General", "Zero") ||
               store.ReadInt("general", "Zero"));
}

// Two writes of UnFin=0 rewrite each file, showing all that was read. A file that did not read
// whole is copied aside once, to the first free name, before the first write; a clean one is not.
TEST_F(IniSettingsTest, DamagedFilesKeepWhatReadWholeAndAreCopiedAsideOnce) {
  const std::pair<std::string, std::string> cases[] = {
      {"orphan=1\n[General]\ngood=5\ngarbage line\nBig=2147483648\nSmall=-2147483649\nbad=\"x\\q\"\n"
       "after=\"ok\" junk\n=7\nnothing=\n[Broken\nlost=1\n[General]\nlast=\"fine\"\n",
       "[General]\r\ngood=5\r\nlast=\"fine\"\r\nUnFin=0\r\n"},
      // Clean: a byte order mark, comments, blanks, mixed line ends, a section in two parts.
      {"\xEF\xBB\xBF; comment\n[B]\nz=1\r\n  y = \"t\"  \n\n[A]\r\nk=2\n[B]\nx=3",
       "[B]\r\nz=1\r\ny=\"t\"\r\nx=3\r\n\r\n[A]\r\nk=2\r\n\r\n[General]\r\nUnFin=0\r\n"},
      {"[General]\r\nUnFin=1\r\nLastGName=\"Spider Tw", "[General]\r\nUnFin=0\r\n"},  // cut mid-quote
      // Windows-1252 bytes; well-formed UTF-8 stays, an overlong form and a surrogate do not.
      {"[General]\nName=\"Caf\xE9 \x80 \xE2\x99\xA0 \xC0\xAF \xED\xA0\x80\"\n",
       "[General]\r\nName=\"Caf\xC3\xA9 \xE2\x82\xAC \xE2\x99\xA0 \xC3\x80\xC2\xAF \xC3\xAD\xC2\xA0\xE2\x82\xAC\"\r\n"
       "UnFin=0\r\n"}};
  for (const auto& [before, after] : cases) {
    Put(before);
    IniSettingsStore store(file_);
    for (int write = 0; write < 2; ++write) ASSERT_TRUE(store.WriteInt("General", "UnFin", 0));
    EXPECT_EQ(Disk(), after);
  }
  for (const auto& [suffix, k] : {std::pair{".bad", 0}, {".bad-1", 2}, {".bad-2", 3}}) EXPECT_EQ(Disk(suffix), cases[k].first) << suffix;
  // Damage written by another program after the store read a clean file is kept too.
  IniSettingsStore store(file_);
  const std::string garbage = "[General]\nUnFin=1\n\x01\x02 not a setting\n";
  Put(garbage);
  ASSERT_TRUE(store.WriteInt("General", "Other", 2));
  EXPECT_EQ(Disk(".bad-3"), garbage);
  EXPECT_EQ(Disk(), "[General]\r\nUnFin=1\r\nOther=2\r\n");
  EXPECT_FALSE(fs::exists(file_.string() + ".bad-4"));
}

TEST_F(IniSettingsTest, RefusedWriteAnswersFalseAndKeepsWhatIsOnDisk) {
  Put("[General]\r\nUnFin=1\r\n");
  IniSettingsStore store(file_);
  // Names and texts that would not read back are refused.
  for (const auto& [section, key] : {std::pair{"General", ""}, {"Gen\neral", "UnFin"}})
    EXPECT_FALSE(store.WriteInt(section, key, 2)) << key;
  EXPECT_FALSE(store.WriteText("General", "Name", "\xE9"));
  EXPECT_NE(store.LastError(), "");
  EXPECT_EQ(Disk(), "[General]\r\nUnFin=1\r\n");
  // The file turns into a folder: the rename fails, even for root; reads answer what was on disk.
  fs::remove(file_);
  fs::create_directory(file_);
  EXPECT_FALSE(store.WriteInt("General", "UnFin", 2));
  EXPECT_EQ(store.ReadInt("General", "UnFin"), 1);
  // A store over something it cannot read, even as root, never replaces it.
  fs::remove(file_);
  const int socket = ::socket(AF_UNIX, SOCK_STREAM, 0);
  sockaddr_un address{AF_UNIX, {}};
  file_.string().copy(address.sun_path, sizeof address.sun_path - 1);
  ASSERT_EQ(bind(socket, reinterpret_cast<sockaddr*>(&address), sizeof address), 0);
  EXPECT_FALSE(IniSettingsStore(file_).WriteInt("General", "UnFin", 2));
  EXPECT_TRUE(fs::is_socket(file_));
  close(socket);
  // A parent that is a regular file: the folders cannot be made.
  ASSERT_TRUE(WriteFileAtomically(home_.Path() / "plain", "old"));
  EXPECT_FALSE(IniSettingsStore(home_.Path() / "plain" / "sub" / "quorvale.ini").WriteInt("G", "k", 1));
  EXPECT_EQ(ReadWholeFile(home_.Path() / "plain"), "old");
}

// The window and quorvale-cli run at once: each sees the other's keys at its next read,
// and a write never drops a key the other wrote since.
TEST_F(IniSettingsTest, TwoStoresOnOneFileKeepEachOthersKeys) {
  IniSettingsStore a(file_);
  IniSettingsStore b(file_);
  ASSERT_TRUE(a.WriteInt("General", "x", 1));
  EXPECT_EQ(a.ReadInt("General", "x"), 1);
  ASSERT_TRUE(b.WriteText("Other", "y", "two"));
  EXPECT_EQ(a.ReadText("Other", "y"), "two");
  ASSERT_TRUE(a.WriteInt("General", "z", 3));
  EXPECT_EQ(Disk(), "[General]\r\nx=1\r\nz=3\r\n\r\n[Other]\r\ny=\"two\"\r\n");
  EXPECT_EQ(b.ReadInt("General", "z"), 3);
  // Replaced, changed in place, removed and made again behind the store's back.
  Put("[General]\r\nx=4\r\n");
  EXPECT_EQ(b.ReadInt("General", "x"), 4);
  std::ofstream(file_, std::ios::binary | std::ios::trunc) << "[General]\r\nx=55\r\n";
  EXPECT_EQ(b.ReadInt("General", "x"), 55);
  fs::remove(file_);
  EXPECT_EQ(b.ReadInt("General", "x"), std::nullopt);
  Put("[General]\r\nx=6\r\n");
  EXPECT_EQ(b.ReadInt("General", "x"), 6);
}

// A second program in the middle of a write holds the lock: ours waits for it rather than
// rewriting the file under it. No clock: the test waits until the kernel lists our write
// as blocked on the lock (or the write is over, which is the fault).
TEST_F(IniSettingsTest, AWriteWaitsWhileAnotherHoldsTheLock) {
  ASSERT_TRUE(std::ifstream("/proc/locks")) << "the test needs /proc/locks to see a waiting write";
  IniSettingsStore store(file_);
  fs::create_directories(file_.parent_path());
  const fs::path lock = file_.string() + ".lock";
  const int held = open(lock.c_str(), O_RDONLY | O_CREAT | O_CLOEXEC, 0644);
  ASSERT_EQ(flock(held, LOCK_EX), 0);
  std::atomic<bool> done = false;
  std::thread writer([&] {
    store.WriteInt("General", "UnFin", 1);
    done = true;
  });
  while (!done && !SomeoneWaitsForLock(lock)) std::this_thread::yield();
  EXPECT_FALSE(done);
  EXPECT_EQ(Disk(), "<missing>");
  close(held);
  writer.join();
  EXPECT_EQ(Disk(), "[General]\r\nUnFin=1\r\n");
}

// Hot Games keys a section by game name, and every valid name must read back: a key that
// would not read bare is quoted, as texts are, and plain keys stay as they were.
TEST_F(IniSettingsTest, KeysThatWouldNotReadBareAreQuoted) {
  Put("[HotGames]\r\nSpider=1\r\n");
  const char* const keys[] = {" a, b = c ", "=", "[x]", ";x", "#x", "\"q\"", "  ", "back\\slash"};
  {
    IniSettingsStore store(file_);
    for (const char* key : keys) EXPECT_TRUE(store.WriteInt("HotGames", key, 1)) << key;
  }
  EXPECT_TRUE(Disk().starts_with("[HotGames]\r\nSpider=1\r\n\" a, b = c \"=1\r\n\"=\"=1\r\n")) << Disk();
  IniSettingsStore again(file_);
  for (const char* key : keys) EXPECT_EQ(again.ReadInt("HotGames", key), 1) << key;
  EXPECT_EQ(again.ReadInt("HotGames", "Spider"), 1);
}

TEST(IniSettingsDefaultPath, IgnoresARelativeXdgConfigHome) {  // it would follow the working folder
  const std::string kept = std::getenv("XDG_CONFIG_HOME") ? std::getenv("XDG_CONFIG_HOME") : "";
  setenv("XDG_CONFIG_HOME", "relative", 1);
  const char* home = std::getenv("HOME");
  EXPECT_EQ(IniSettingsStore::DefaultPath(), fs::path(home ? home : "") / ".config/Quorvale/6.0/quorvale.ini");
  kept.empty() ? unsetenv("XDG_CONFIG_HOME") : setenv("XDG_CONFIG_HOME", kept.c_str(), 1);
}

}  // namespace
}  // namespace qv
