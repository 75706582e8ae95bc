#include <gtest/gtest.h>

#include <unistd.h>

#include <climits>
#include <cstdlib>

#include "session/AtomicFile.h"
#include "settings/IniSettingsStore.h"
#include "settings/MemorySettingsStore.h"

namespace fs = std::filesystem;

namespace qv {
namespace {

class IniSettingsTest : public ::testing::Test {
 protected:
  void SetUp() override {
    folder_ = fs::temp_directory_path() /
              ("quorvale-settings-" + std::to_string(getpid()) + "-" +
               ::testing::UnitTest::GetInstance()->current_test_info()->name());
    fs::remove_all(folder_);
    fs::create_directories(folder_);
    file_ = folder_ / "Quorvale" / "6.0" / "quorvale.ini";
  }
  void TearDown() override { fs::remove_all(folder_); }

  void Put(const std::string& bytes) {
    fs::create_directories(file_.parent_path());
    ASSERT_TRUE(WriteFileAtomically(file_, bytes));
  }
  std::string Disk(const std::string& suffix = "") const {
    return ReadWholeFile(file_.string() + suffix).value_or("<missing>");
  }

  fs::path folder_;
  fs::path file_;
};

TEST_F(IniSettingsTest, ValuesRoundTripThroughTheFile) {
  const std::pair<std::string, int32_t> numbers[] = {
      {"Zero", 0}, {"Minus", -1}, {"Lowest", INT32_MIN}, {"Highest", INT32_MAX}};
  const std::pair<std::string, std::string> texts[] = {
      {"Empty", ""},
      {"Tricky", "say \"hi\" C:\\dir\\\r\nnext \\n"},
      {"Last Game Name", "Pik \xE2\x99\xA0 \xC3\x84rger"},
      {"Padded", "  both ends  "}};
  {
    IniSettingsStore store(file_);
    EXPECT_EQ(store.ReadInt("General", "Zero"), std::nullopt);
    EXPECT_FALSE(fs::exists(folder_ / "Quorvale"));  // reading creates nothing
    for (const auto& [key, value] : numbers) ASSERT_TRUE(store.WriteInt("General", key, value));
    for (const auto& [key, value] : texts) ASSERT_TRUE(store.WriteText("Other", key, value));
  }
  const IniSettingsStore store(file_);
  for (const auto& [key, value] : numbers) EXPECT_EQ(store.ReadInt("General", key), value) << key;
  for (const auto& [key, value] : texts) EXPECT_EQ(store.ReadText("Other", key), value) << key;
  EXPECT_EQ(store.ReadText("Other", "Missing"), std::nullopt);
  EXPECT_EQ(store.ReadInt("Other", "Empty"), std::nullopt);  // wrong type
  EXPECT_EQ(store.ReadText("General", "Zero"), std::nullopt);
  EXPECT_EQ(store.ReadInt("general", "Zero"), std::nullopt);  // case counts
}

TEST_F(IniSettingsTest, RewriteKeepsTheOrderItRead) {
  Put("\xEF\xBB\xBF; comment\n[B]\nz=1\r\n  y = \"t\"  \n\n[A]\r\nk=2\n[B]\nx=3");
  IniSettingsStore store(file_);
  ASSERT_TRUE(store.WriteInt("A", "new", 4));
  EXPECT_EQ(Disk(), "[B]\r\nz=1\r\ny=\"t\"\r\nx=3\r\n\r\n[A]\r\nk=2\r\nnew=4\r\n");
  EXPECT_FALSE(fs::exists(file_.string() + ".bad"));  // it all read whole
}

TEST_F(IniSettingsTest, UnreadableLinesAreSkippedAndTheFileKeptAsideOnce) {
  const std::string damaged =
      "orphan=1\n[General]\ngood=5\ngarbage line\nBig=2147483648\nSmall=-2147483649\n"
      "bad=\"x\\q\"\nafter=\"ok\" junk\n=7\nnothing=\n[Broken\nlost=1\n[General]\nlast=\"fine\"\n";
  Put(damaged);
  {
    IniSettingsStore store(file_);
    EXPECT_EQ(store.ReadInt("General", "good"), 5);
    EXPECT_EQ(store.ReadText("General", "last"), "fine");
    for (const char* key : {"orphan", "Big", "Small", "bad", "after", "nothing", "lost"}) {
      EXPECT_EQ(store.ReadInt("General", key), std::nullopt) << key;
      EXPECT_EQ(store.ReadText("General", key), std::nullopt) << key;
    }
    ASSERT_TRUE(store.WriteInt("General", "good", 6));
    ASSERT_TRUE(store.WriteInt("General", "good", 7));
  }
  EXPECT_EQ(Disk(".bad"), damaged);
  {  // the next run finds a clean file: nothing more is kept aside
    IniSettingsStore store(file_);
    EXPECT_EQ(store.ReadInt("General", "good"), 7);
    ASSERT_TRUE(store.WriteInt("General", "good", 8));
  }
  EXPECT_FALSE(fs::exists(file_.string() + ".bad-1"));

  Put("[General]\ngood=8\nnonsense\n");  // damaged again in a later run
  ASSERT_TRUE(IniSettingsStore(file_).WriteInt("General", "good", 9));
  EXPECT_EQ(Disk(".bad"), damaged);
  EXPECT_EQ(Disk(".bad-1"), "[General]\ngood=8\nnonsense\n");
}

TEST_F(IniSettingsTest, FileCutMidQuoteKeepsWhatReadWhole) {
  const std::string cut = "[General]\r\nUnFin=1\r\nLastGName=\"Spider Tw";
  Put(cut);
  IniSettingsStore store(file_);
  EXPECT_EQ(store.ReadInt("General", "UnFin"), 1);
  EXPECT_EQ(store.ReadText("General", "LastGName"), std::nullopt);
  ASSERT_TRUE(store.WriteInt("General", "UnFin", 0));
  EXPECT_EQ(Disk(".bad"), cut);
}

TEST_F(IniSettingsTest, Windows1252BytesBecomeUtf8) {
  // Well-formed UTF-8 stays; an overlong form and a surrogate count as stray bytes.
  const std::string legacy = "[General]\nName=\"Caf\xE9 \x80 \xE2\x99\xA0 \xC0\xAF \xED\xA0\x80\"\n";
  Put(legacy);
  IniSettingsStore store(file_);
  const std::string utf8 =
      "Caf\xC3\xA9 \xE2\x82\xAC \xE2\x99\xA0 \xC3\x80\xC2\xAF \xC3\xAD\xC2\xA0\xE2\x82\xAC";
  EXPECT_EQ(store.ReadText("General", "Name"), utf8);
  ASSERT_TRUE(store.WriteInt("General", "UnFin", 1));
  EXPECT_EQ(Disk(".bad"), legacy);
  EXPECT_EQ(IniSettingsStore(file_).ReadText("General", "Name"), utf8);
}

TEST_F(IniSettingsTest, RefusedWriteAnswersFalseAndKeepsWhatIsOnDisk) {
  Put("[General]\r\nUnFin=1\r\n");
  IniSettingsStore store(file_);
  // Names and texts that would not read back are refused, and the file stays.
  EXPECT_FALSE(store.WriteInt("General", "a=b", 2));
  EXPECT_FALSE(store.WriteInt("General", " padded", 2));
  EXPECT_FALSE(store.WriteInt("Gen\neral", "UnFin", 2));
  EXPECT_FALSE(store.WriteText("General", "Name", "\xE9"));
  EXPECT_NE(store.LastError(), "");
  EXPECT_EQ(Disk(), "[General]\r\nUnFin=1\r\n");

  // The file turns into a folder: the rename over it fails, even for root.
  fs::remove(file_);
  fs::create_directory(file_);
  EXPECT_FALSE(store.WriteInt("General", "UnFin", 2));
  EXPECT_FALSE(store.WriteText("General", "Name", "x"));
  EXPECT_NE(store.LastError(), "");
  EXPECT_EQ(store.ReadInt("General", "UnFin"), 1);
  EXPECT_EQ(store.ReadText("General", "Name"), std::nullopt);

  // A store over something that cannot be read never replaces it.
  EXPECT_FALSE(IniSettingsStore(file_).WriteInt("General", "UnFin", 2));
  EXPECT_TRUE(fs::is_directory(file_));

  // A parent that is a regular file: the folders cannot be made.
  ASSERT_TRUE(WriteFileAtomically(folder_ / "plain", "old"));
  EXPECT_FALSE(IniSettingsStore(folder_ / "plain" / "sub" / "quorvale.ini").WriteInt("G", "k", 1));
  EXPECT_EQ(ReadWholeFile(folder_ / "plain"), "old");
}

TEST(IniSettingsDefaultPath, FollowsXdgConfigHomeThenHome) {
  const auto keep = [](const char* name) {
    const char* value = std::getenv(name);
    return std::pair{name, value ? std::optional<std::string>(value) : std::nullopt};
  };
  const auto saved = {keep("XDG_CONFIG_HOME"), keep("HOME")};
  setenv("HOME", "/home/u", 1);
  setenv("XDG_CONFIG_HOME", "/x/cfg", 1);
  EXPECT_EQ(IniSettingsStore::DefaultPath(), "/x/cfg/Quorvale/6.0/quorvale.ini");
  setenv("XDG_CONFIG_HOME", "relative", 1);  // not absolute, so ignored
  EXPECT_EQ(IniSettingsStore::DefaultPath(), "/home/u/.config/Quorvale/6.0/quorvale.ini");
  for (const auto& [name, value] : saved) value ? setenv(name, value->c_str(), 1) : unsetenv(name);
}

TEST(MemorySettingsStore, StoresTypedValuesAndCanRefuseWrites) {
  MemorySettingsStore store;
  ASSERT_TRUE(store.WriteInt("General", "UnFin", -3));
  ASSERT_TRUE(store.WriteText("General", "Name", ""));
  EXPECT_EQ(store.ReadInt("General", "UnFin"), -3);
  EXPECT_EQ(store.ReadText("General", "Name"), "");
  EXPECT_EQ(store.ReadText("General", "UnFin"), std::nullopt);

  store.SetRefuseWrites(true);
  EXPECT_FALSE(store.WriteInt("General", "UnFin", 4));
  EXPECT_FALSE(store.WriteText("General", "New", "x"));
  EXPECT_EQ(store.ReadInt("General", "UnFin"), -3);
  EXPECT_EQ(store.ReadText("General", "New"), std::nullopt);
}

}  // namespace
}  // namespace qv
