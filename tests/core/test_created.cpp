// Created games: the .gam file, the list of them, saving with its questions, and playing them.
#include <gtest/gtest.h>

#include <filesystem>

#include "TestProgram.h"
#include "created/GamFile.h"
#include "lists/Recent.h"
#include "session/Commands.h"
#include "session/SavedGameFile.h"

namespace qv {
namespace {

namespace fs = std::filesystem;
using test::ReadFile;
using test::WriteFile;

struct CreatedGames : ::testing::Test {
  fs::path Games() { return t->cData.GamesFolder(FolderUse::Read); }
  std::string Gam(const std::string& file) { return (Games() / file).string(); }
  void WriteGam(const std::string& file, const std::string& text) {
    fs::create_directories(Games());
    WriteFile(Gam(file), text);
  }
  // Makes a created game as the editor does: Spider's fields, changed, saved as new.
  void Create(const std::string& name, int piles, int suits, int space = 13) {
    ASSERT_TRUE(t->cCustom.Init("Spider"));
    t->cCustom.HPiles = static_cast<int16_t>(piles);
    t->cCustom.Suits = static_cast<int16_t>(suits);
    t->cCustom.HSpace = static_cast<int16_t>(space);
    ASSERT_TRUE(t->cCustom.SaveStudioGame(name, true, false));
  }

  test::TestProgram t;
};
using CreatedGameFile = CreatedGames;
using CreatedGamePlay = CreatedGames;

TEST_F(CreatedGameFile, SavedAsTwoRecordsAndListedFromIdEight) {
  EXPECT_FALSE(fs::exists(Games()));  // listing at every start makes no folder
  Create("New Game 01", 10, 2);
  EXPECT_EQ(ReadFile(Gam("New Game 01.gam")), "\"New Game 01\"\r\n10,4,13,0,1,2,0\r\n");
  EXPECT_EQ(t.dialogs.shown, std::vector<std::string>{"Successfully Saved Game : New Game 01"});
  EXPECT_EQ(std::tuple(t->cData.GetGameID("New Game 01"), t->cData.IsOriginal("New Game 01"),
                       t->cData.GetDeck("New Game 01"), t.window.menuRefreshes),
            std::tuple(8, true, "Two (104 Cards)", 1));

  // The name comes from inside the file, whatever the file is called.
  WriteGam("renamed.gam", "\"Inner\"\r\n7,5,0,1,1,0,0\r\n");
  ASSERT_TRUE(t->cCustom.Init("Spider"));
  ASSERT_TRUE(t->cCustom.LoadStudioFile("renamed"));
  const cCustom& c = t->cCustom;
  EXPECT_EQ(std::tuple(c.GameName, c.HPiles, c.HOrder, c.HSpace, c.HAK, c.Suits, c.MOrder),
            std::tuple("Inner", 7, 5, 0, 1, 0, 0));
  EXPECT_FALSE(t->cCustom.LoadStudioFile("missing"));
  EXPECT_EQ(c.GameName, "Inner");
}

// Sorted ignoring case, any case of ".gam", hidden files too, each name once, and only
// files that read; ids follow the list and move up after a delete.
TEST_F(CreatedGameFile, ListingOrderCaseHiddenAndBadFiles) {
  const std::string good = "\"g\"\r\n6,4,13,0,1,0,0\r\n";
  for (const char* f : {"b.gam", "A.GAM", ".hidden.gam", "c.Gam", "c.gam", "abcGAM", "notes.txt"})
    WriteGam(f, good);
  const std::pair<const char*, std::string> bad[] = {
      {"short.gam", "\"g\"\r\n"},           {"text.gam", "\"g\"\r\n6,4,x,0,1,0,0\r\n"},
      {"piles.gam", "\"g\"\r\n11,4,13,0,1,0,0\r\n"}, {"order.gam", "\"g\"\r\n6,6,13,0,1,0,0\r\n"},
      {"space.gam", "\"g\"\r\n6,4,14,0,1,0,0\r\n"},  {"suits.gam", "\"g\"\r\n6,4,13,0,1,3,0\r\n"},
      {"eight.gam", "\"g\"\r\n6,4,13,0,1,0,0,1\r\n"}, {"name.gam", "g\r\n6,4,13,0,1,0,0\r\n"},
      {"huge.gam", good + std::string(5000, ' ')}};
  for (const auto& [f, text] : bad) WriteGam(f, text);
  t->cData.Refresh_NewGames();
  EXPECT_EQ(t->cCustom.GetStudioGames(), (std::vector<std::string>{"4", ".hidden", "A", "b", "c"}));
  EXPECT_EQ(t->cData.GetGameID("b"), 10);
  for (const auto& [f, text] : bad) EXPECT_EQ(ReadFile(Gam(f)), text);  // left on disk
  fs::remove(Games() / "A.GAM");
  t->cData.Refresh_NewGames();
  EXPECT_EQ(std::tuple(t->cData.TotalGames(), t->cData.GetGameID("b")), std::tuple(10, 9));
  EXPECT_FALSE(t->cCustom.Init("abc"));
}

TEST_F(CreatedGameFile, SaveRefusesBadNamesAndAsksBeforeOverwriting) {
  for (const std::string& name : {std::string(), std::string("a/b"), std::string("x?"), std::string(181, 'n'),
                                  std::string("two\nlines")}) {
    t.dialogs.shown.clear();
    EXPECT_FALSE(t->cCustom.SaveStudioGame(name, true, false));
    EXPECT_EQ(t->cCustom.GameName, name);  // stored before the check
    EXPECT_EQ(t.dialogs.shown, std::vector<std::string>{"Please Enter a valid Game Name"});
  }
  Create("Mine", 8, 1);
  const std::string before = ReadFile(Gam("Mine.gam"));
  t->cCustom.HPiles = 9;
  t.dialogs.shown.clear();
  EXPECT_FALSE(t->cCustom.SaveStudioGame("Mine", true, false));  // no answer is No
  EXPECT_EQ(t.dialogs.shown, std::vector<std::string>{"Another Game exists with the same name. Do you want to overwrite ?"});
  EXPECT_EQ(ReadFile(Gam("Mine.gam")), before);
  // Save of an edited game and a save from the game being edited never ask.
  EXPECT_TRUE(t->cCustom.SaveStudioGame("Mine", false, false));
  EXPECT_TRUE(t->cCustom.SaveStudioGame("Mine", true, true));
  // The same name in another case of ".gam" is the same game: asked, then replaced.
  WriteGam("Other.GAM", "\"Other\"\r\n6,4,13,0,1,0,0\r\n");
  t.dialogs.answers = {Answer::Yes};
  EXPECT_TRUE(t->cCustom.SaveStudioGame("Other", true, false));
  EXPECT_FALSE(fs::exists(Gam("Other.GAM")));
  EXPECT_EQ(ReadFile(Gam("Other.gam")), "\"Other\"\r\n9,4,13,0,1,1,0\r\n");
  // A write that fails says so once and keeps the old file.
  fs::remove(Gam("Other.gam"));
  fs::create_directory(Gam("Other.gam"));
  t.dialogs.shown.clear();
  EXPECT_FALSE(t->cCustom.SaveStudioGame("Other", false, false));
  ASSERT_EQ(t.dialogs.shown.size(), 1u);
  EXPECT_NE(t.dialogs.shown[0].find("Other.gam"), std::string::npos);
}

// Where fewer piles stand is checked with the rules; here the fields come from the file.
TEST_F(CreatedGamePlay, ADeckOfOneSuitOnSixPilesFromItsFile) {
  Create("Six Easy", 6, 0, 12);
  t->cCustom.Init("Spider");  // browsing elsewhere does not matter
  t.Deal("Six Easy", 7);
  // Six piles, Kings only in a space, one suit.
  int dealt = 0;
  for (int pile = 0; pile < 6; ++pile) dealt += t->cPlay.GetTop(0, pile) + 1;
  EXPECT_EQ(std::tuple(t->cGames.Piles(0), dealt, t->cGames.EmptyNum(), t->cGames.SuitType(), t->cGamePlay.GameName()),
            std::tuple(6, 44, 12, 0, "Six Easy"));
  for (int pic = 0; pic < 104; ++pic) EXPECT_EQ(t->cPlay.Suit(pic), t->cPlay.Suit(0));
}

// The game on the table keeps the fields it was dealt with: deleted and browsed past, it
// is still saved with them, restarted, and its rules page shows them.
TEST_F(CreatedGamePlay, ADeletedGameKeepsItsFieldsOnTheTableAndInItsFile) {
  Create("Gone", 7, 1);
  t.Deal("Gone", 3);
  fs::remove(Gam("Gone.gam"));
  t->cData.Refresh_NewGames();
  ASSERT_TRUE(t->cCustom.Init("Scarab"));
  const std::string saved = t.home.File("gone.vq0");
  ASSERT_TRUE(t->cEngine.SavetoFile(saved));
  const auto header = ReadGameHeader(saved);
  ASSERT_TRUE(header);
  EXPECT_EQ(std::tuple(header->HPiles, header->Suits, header->MOrder), std::tuple(7, 1, 0));
  ExecCommand(*t.app, "Restart");
  EXPECT_EQ(t->cGames.Piles(0), 7);
  t->cCustom.Init("Scarab");
  ExecCommand(*t.app, "Rules");
  EXPECT_EQ(std::tuple(t.window.opened.back(), t.window.openedModal.back(), t->cCustom.HPiles), std::tuple("Rules", false, 7));
  ExecCommand(*t.app, "Close");
  ASSERT_TRUE(t->cGamePlay.PlayFile(saved, false));
  EXPECT_EQ(t->cGames.Piles(0), 7);
  ExecCommand(*t.app, "Restart");
  EXPECT_EQ(std::tuple(t->cGames.Piles(0), t->cGamePlay.Game_Status()), std::tuple(7, 1));
  // With no game running F1 opens the help; New after the last game is gone deals Spider.
  ExecCommand(*t.app, "Close");
  ExecCommand(*t.app, "Rules");
  EXPECT_EQ(t.window.opened.back(), "Contents");
  ExecCommand(*t.app, "New");
  EXPECT_EQ(t->cGamePlay.GameName(), "Spider");
}

// Every name the check of names takes plays end to end: dealt, saved and opened again,
// listed among the recent games and played from there.
TEST_F(CreatedGamePlay, NamesWithCommasBlanksAndEqualsGoEverywhere) {
  for (const std::string& name : {std::string(" a, b = c "), std::string("  "), std::string("[x] ;#")}) {
    Create(name, 8, 1);
    t.Deal(name, 12);
    ASSERT_EQ(t->cGamePlay.GameName(), name);
    const std::string file = t.home.File("n.vq0");
    ASSERT_TRUE(t->cEngine.SavetoFile(file));
    ExecCommand(*t.app, "Close");
    ASSERT_TRUE(t->cGamePlay.PlayFile(file, false));
    EXPECT_EQ(t->cGamePlay.GameName(), name);
    EXPECT_EQ(RecentMenuEntries(*t.app, kRecentPlayed).front(), name + " - 12");
    ExecCommand(*t.app, "Close");
    ASSERT_TRUE(PlayRecent(*t.app, RecentCode(kRecentPlayed), name + " - 12")) << name;
    EXPECT_EQ(t->cGames.Piles(0), 8);
  }
}

}  // namespace
}  // namespace qv
