#include <gtest/gtest.h>

#include <filesystem>

#include "TestProgram.h"
#include "lists/AutoSave.h"
#include "lists/Pending.h"
#include "lists/Recent.h"
#include "session/Commands.h"
#include "session/SavedGameFile.h"

namespace qv {
namespace {

namespace fs = std::filesystem;

std::vector<std::string> Names(const std::vector<std::string>& paths) {
  std::vector<std::string> names;
  for (const auto& p : paths) names.push_back(fs::path(p).filename().string());
  std::sort(names.begin(), names.end());
  return names;
}

struct RecentLists : ::testing::Test {
  test::TestProgram t;
  cFunc& f = t->cFunc;
};

TEST_F(RecentLists, NewItemsComeInAtTheTopAndListedOnesStay) {
  for (int i = 1; i <= 10; ++i) f.AddtoMRU(1, "game" + std::to_string(i));
  f.AddtoMRU(1, "game5");  // already listed: keeps its place
  EXPECT_EQ(std::tuple(f.GetMRU(1)[1], f.GetMRU(1)[6]), std::tuple("game10", "game5"));
  f.AddtoMRU(1, "game11");  // the eleventh pushes out the oldest
  EXPECT_EQ(std::tuple(f.GetMRU(1)[1], f.GetMRU(1)[10], f.GetMRUCount(1)), std::tuple("game11", "game2", 10));
  ClearRecent(*t.app, 1);
  EXPECT_EQ(std::tuple(f.GetMRU(1)[0], f.GetMRU(1).size()), std::tuple("0", 11u));
  EXPECT_GT(t.window.menuRefreshes, 0);
}

TEST_F(RecentLists, AListRefusesDuplicatesAndKeepsItsGaps) {
  EXPECT_TRUE(f.AddtoLIST(0, "/pics/a.png"));
  EXPECT_FALSE(f.AddtoLIST(0, "/pics/a.png"));
  EXPECT_TRUE(f.AddtoLIST(0, "/PICS/A.png"));  // another case is another entry...
  EXPECT_TRUE(f.IsExists(0, "/pics/A.PNG"));   // ...though the look-up ignores case
  EXPECT_TRUE(f.AddtoLIST(0, "/pics/b.png"));
  f.RemoveListItem(0, "/Pics/A.png");  // the first match goes, leaving a gap
  EXPECT_EQ(f.GetLIST(0), (std::vector<std::string>{"2", "/PICS/A.png", "/pics/b.png"}));
  EXPECT_TRUE(f.AddtoLIST(0, "/pics/c.png"));  // fills the gap
  EXPECT_EQ(f.GetLIST(0)[1], "/pics/c.png");  // a full list is refused in the background dialog's tests
}

TEST_F(RecentLists, MenusShowOnlyWhatStillPlays) {
  t.Deal("Coral", 4);
  EXPECT_EQ(RecentMenuEntries(*t.app, kRecentPlayed), (std::vector<std::string>{"Coral - 4"}));
  f.AddtoMRU(kRecentPlayed, "Gone Game - 3");
  EXPECT_EQ(RecentMenuEntries(*t.app, kRecentPlayed).size(), 1u);
  const std::string saved = t.home.File("s.vq0");
  ASSERT_TRUE(t->cEngine.SavetoFile(saved));
  f.AddtoMRU(kRecentSaved, saved);
  f.AddtoMRU(kRecentSaved, t.home.File("missing.vq0"));
  test::WriteFile(t.home.File("junk.vq0"), "not a game");
  f.AddtoMRU(kRecentSaved, t.home.File("junk.vq0"));
  EXPECT_EQ(RecentMenuEntries(*t.app, kRecentSaved), (std::vector<std::string>{saved}));
  EXPECT_EQ(GetRecentCount(*t.app, kRecentSaved), 3);  // hidden entries stay stored
  EXPECT_TRUE(PlayRecent(*t.app, 202, "Coral - 4") && t->cGamePlay.GameNo().IsTyped());
  EXPECT_TRUE(PlayRecent(*t.app, 201, saved));
  EXPECT_EQ(RecentMenuEntries(*t.app, kRecentOpened), (std::vector<std::string>{saved}));
}

struct AutoSaves : ::testing::Test {
  std::vector<std::string> Incomplete() { return Names(GetAutoSaveFiles(*t.app, false)); }
  test::TestProgram t;
};

TEST_F(AutoSaves, EveryGivenUpGameLeavesACopyUnderAFreeName) {
  t.Deal("Spider", 1234);
  ExecCommand(*t.app, "Close");
  t.Deal("Spider", 1234);
  ExecCommand(*t.app, "Restart");  // the game on the table counts as given up
  t.Deal("Spider", 1234);          // and so does one ended by a new deal
  EXPECT_EQ(Incomplete(), (std::vector<std::string>{"Spider-1234-(1).vq0", "Spider-1234-(2).vq0", "Spider-1234.vq0"}));
  // A won copy of the same deal does not collide with them, and a folder deleted meanwhile
  // is made again for it.
  fs::remove_all(t->cData.AutoSaveFolder(FolderUse::Read));
  ASSERT_TRUE(AutoSaveGame(*t.app, true));
  EXPECT_EQ(Names(GetAutoSaveFiles(*t.app, true)), (std::vector<std::string>{"Spider-1234.vq1"}));
}

TEST_F(AutoSaves, OnlyReadableCopiesOfTheirKindAreListed) {
  const fs::path folder = t->cData.AutoSaveFolder();
  t.Deal("Plaza", 2);
  ASSERT_TRUE(t->cEngine.SavetoFile((folder / "Upper.VQ0").string()));
  test::WriteFile((folder / "cut.vq0").string(), "Plaza\r\n 2 \r\n");
  test::WriteFile((folder / "notes.txt").string(), "x");
  EXPECT_EQ(Incomplete(), (std::vector<std::string>{"Upper.VQ0"}));
  // Emptying asks first, and deletes only what it lists: a bad file is never deleted.
  EXPECT_FALSE(EmptyAutoSave(*t.app, false));
  t.dialogs.answers = {Answer::Yes};
  EXPECT_TRUE(EmptyAutoSave(*t.app, false));
  EXPECT_TRUE(Incomplete().empty() && fs::exists(folder / "cut.vq0"));
}

TEST_F(AutoSaves, TheOptionsTurnCopiesOffAndSomeEndingsWriteNone) {
  t.settings.WriteInt("Options", "EnableInc", 0);
  t.Deal("Spider", 5);
  ExecCommand(*t.app, "Close");
  EXPECT_TRUE(Incomplete().empty());
  t.settings.WriteInt("Options", "EnableInc", 1);
  t.Deal("Spider", 5);
  t->cGamePlay.Unload();  // kept for the next start, not given up
  EXPECT_TRUE(Incomplete().empty());
  t->cGamePlay.ClearArea();  // what the stop leaves behind
  // A finished game's replay closed: nothing was played, nothing is kept.
  fs::copy_file(t->cData.UnFinFile(), t.home.File("done.vq1"));
  t->cGamePlay.PlayFile(t.home.File("done.vq1"), false);
  ExecCommand(*t.app, "Close");
  EXPECT_TRUE(Incomplete().empty());
  t.Deal("Spider", 5);
  t.settings.WriteInt("Options", "GameSave", 0);
  t->cGamePlay.Unload();  // given up at stop
  EXPECT_EQ(Incomplete().size(), 1u);
}

using PendingList = AutoSaves;

TEST_F(PendingList, MovedGamesTakeFreeNamesAndComeBack) {
  for (int i = 0; i < 3; ++i) {
    t.Deal("Spider", 77);
    test::DealRows(t, 1);
    ExecCommand(*t.app, "AddPend");
    EXPECT_EQ(t->cGamePlay.Game_Status(), 0);
  }
  EXPECT_EQ(Names(GetPendingFiles(*t.app)),
            (std::vector<std::string>{"Spider-77-1.vq0", "Spider-77-2.vq0", "Spider-77.vq0"}));
  const auto entries = PendingMenuEntries(*t.app);
  ASSERT_EQ(entries.size(), 3u);
  EXPECT_NE(entries[0].caption.find(" (0% Completed)"), std::string::npos);
  // Taken up, the entry keeps its place and says so; the rebuild after the deal leaves it out.
  std::vector<PendingEntry> taking;
  t.window.onRefreshMenus = [&] { taking = PendingMenuEntries(*t.app); };
  ASSERT_TRUE(t->cGamePlay.PlayPendFile(entries[1].path));
  t.window.onRefreshMenus = nullptr;
  EXPECT_EQ(t->cEngine.GetTransID(), 10);
  ASSERT_EQ(taking.size(), 3u);
  EXPECT_EQ(taking[1].caption, entries[1].caption + " - (Now Playing)");
  EXPECT_TRUE(taking[1].playing && !taking[0].playing && !taking[2].playing);
  const auto playing = PendingMenuEntries(*t.app);
  ASSERT_EQ(playing.size(), 2u);
  EXPECT_EQ(std::tuple(playing[0].path, playing[1].path, GetPendingFiles(*t.app).size()),
            std::tuple(entries[0].path, entries[2].path, 2u));
  // A game from the list cannot be moved there again.
  ExecCommand(*t.app, "AddPend");
  EXPECT_EQ(t.dialogs.shown.back(),
            "This game is already in Pending List. Once added, the game will remain in Pending List till you finish "
            "it or delete it.");
  EXPECT_EQ(t->cGamePlay.Game_Status(), 1);
}

TEST_F(PendingList, EveryReadableFileCountsAndAFailedWriteKeepsTheTable) {
  t.Deal("Coral", 3);
  const fs::path folder = t->cData.PendingFolder();
  ASSERT_TRUE(t->cEngine.SavetoFile((folder / "other.save").string()));
  test::WriteFile((folder / "broken.vq0").string(), "Coral\r\n");
  EXPECT_EQ(Names(GetPendingFiles(*t.app)), (std::vector<std::string>{"other.save"}));
  // A name taken by a folder is passed over.
  fs::create_directories(folder / "Coral-3.vq0");
  ExecCommand(*t.app, "AddPend");
  EXPECT_TRUE(fs::exists(folder / "Coral-3-1.vq0"));
  // A folder deleted meanwhile is made again by the next game moved there.
  fs::remove_all(folder);
  t.Deal("Coral", 3);
  ExecCommand(*t.app, "AddPend");
  EXPECT_EQ(Names(GetPendingFiles(*t.app)), (std::vector<std::string>{"Coral-3.vq0"}));
  // A pending folder that cannot be written: the game stays on the table, with one message.
  t.Deal("Coral", 3);
  fs::remove_all(folder);
  test::WriteFile(folder.string(), "a file where the folder should be");
  const auto before = t.dialogs.shown.size();
  ExecCommand(*t.app, "AddPend");
  EXPECT_EQ(std::tuple(t->cGamePlay.Game_Status(), t.dialogs.shown.size()), std::tuple(1, before + 1));
}

TEST_F(PendingList, APendingGameThatCannotGoBackAtStopIsKeptAsACopy) {
  t.Deal("Scarab", 8);
  test::DealRows(t, 1);
  ExecCommand(*t.app, "AddPend");
  const std::string pending = GetPendingFiles(*t.app).at(0);
  ASSERT_TRUE(t->cGamePlay.PlayPendFile(pending));
  fs::remove(pending);
  fs::create_directory(pending);  // its old name is taken now
  t->cGamePlay.Unload();
  const auto copies = GetAutoSaveFiles(*t.app, false);
  ASSERT_EQ(copies.size(), 1u);
  EXPECT_EQ(ReadGameHeader(copies[0])->Moves, 10);
}

}  // namespace
}  // namespace qv
