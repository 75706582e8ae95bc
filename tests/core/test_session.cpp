#include <gtest/gtest.h>

#include <filesystem>

#include "TestProgram.h"
#include "engine/DealGenerator.h"
#include "engine/Pointer.h"
#include "scores/Players.h"
#include "scores/ScoreText.h"
#include "session/SavedGameFile.h"
#include "session/StartUp.h"

namespace qv {
namespace {

const test::Rules kAnyCard{.HOrder = 5, .MOrder = 5};

void Shuttle(test::TestProgram& t, int from, int to) { DragCardToPile(*t.app, t->cPlay.GetTopPicID(0, from), to); }

TEST(SessionText, FormatSecondsAndStatus) {
  for (const auto& [seconds, text] : {std::pair{65, "0:01:05"}, {754, "0:12:34"}, {0, "0:00:00"}, {90000, "25:00:00"}})
    EXPECT_EQ(FormatSeconds(seconds), text) << seconds;
  for (const auto& [status, text] : {std::pair{1, "Won"}, {0, "Lost"}, {-1, "Lost"}}) EXPECT_EQ(StatusText(status), text);
}

TEST(SessionScore, WorkedScoresRoundHalvesToEven) {
  test::TestProgram t;
  t.Deal("Spider", 9);
  auto& gp = t->cGamePlay;
  test::DealRows(t, 1);
  gp.Time(300);
  EXPECT_EQ(gp.Score(), -105);  // 0 - (100 + 5)

  test::TestProgram any;
  test::PlayWithRules(any, kAnyCard);
  Shuttle(any, 0, 1);
  any->cGamePlay.Time(1);
  EXPECT_EQ(any->cGamePlay.Score(), -1);  // -0.8333
  Shuttle(any, 2, 3);
  Shuttle(any, 4, 5);
  any->cGamePlay.Time(3);
  EXPECT_EQ(any->cGamePlay.Score(), -2);  // -2.5 goes to the even -2
  // Undo lowers the moves, and the score moves with it.
  int speed = 0;
  any->cEngine.Undo(speed);
  EXPECT_EQ(any->cGamePlay.Score(), -2);  // -(1 + 1)
  any->cGamePlay.Time(2000000000);
  EXPECT_EQ(any->cGamePlay.Score(), -32768);  // saturates, never wraps
}

TEST(SessionScore, PercentageAndCardsLeft) {
  test::TestProgram t;
  EXPECT_EQ(t->cGamePlay.Percentage(), 0);  // no game: nothing divides by zero
  t.Deal("Spider", 9);
  EXPECT_EQ(t->cGamePlay.Percentage(), 0);
  EXPECT_EQ(t->cGamePlay.CardsLeft(), 104);
  test::PlayWithRules(t, kAnyCard);
  ASSERT_TRUE(test::CompleteASet(t));
  EXPECT_EQ(t->cGamePlay.Percentage(), 12);  // 12.5 goes to the even 12
  EXPECT_EQ(t->cGamePlay.CardsLeft(), 91);
}

// A second start-up makes no second player; the title names the first.
TEST(SessionTitle, WorkedTitleWithEveryReadout) {
  test::TestProgram t;
  StartUp(*t.app);
  StartUp(*t.app);
  EXPECT_EQ(PlayerCount(t->cRegistry), 1);
  EXPECT_FALSE(t->cData.SesStartTime().empty());
  t.Deal("Spider", 482913);
  test::DealRows(t, 2);
  ASSERT_TRUE(test::MakeAnyLegalMove(t));
  auto& gp = t->cGamePlay;
  gp.Time(137);
  gp.PauseGame(true);
  gp.Update_Title();
  EXPECT_EQ(t.window.title,
            "Quorvale 6.0 [Spider - 482913] [Player1] [Time:0:02:17 Score:-56 Moves:21 Cards Left:104] [Game Paused]");
  for (const char* k : {"ShowTime", "ShowScore", "ShowMoves", "ShowCardsLeft"}) t.settings.WriteInt("Options", k, 0);
  gp.PauseGame(false);
  EXPECT_EQ(gp.Title(), "Quorvale 6.0 [Spider - 482913] [Player1]");
  gp.ClearArea();
  EXPECT_EQ(gp.Title(), "Quorvale 6.0");
}

TEST(SessionStart, ANewDealRunsTheClockAndRemembersTheGame) {
  test::TestProgram t;
  auto& gp = t->cGamePlay;
  EXPECT_EQ(gp.Game_Status(), 0);
  t.Deal("Coral", 77);
  EXPECT_EQ(gp.Game_Status(), 1);
  EXPECT_TRUE(gp.Game_Running());
  EXPECT_TRUE(t.window.TimerEnabled(Timer::Game));
  EXPECT_EQ(gp.LastGName(), "Coral");
  EXPECT_EQ(t->cCustom.MOrder, 2);
  gp.TickGame();
  gp.TickGame();
  EXPECT_EQ(gp.Time(), 2);
  gp.PauseGame(true);
  EXPECT_FALSE(t.window.TimerEnabled(Timer::Game));
  EXPECT_TRUE(t.window.pausedShown);
  gp.TickGame();
  EXPECT_EQ(gp.Time(), 2);
  // Dealing again gives up the game on the table: a new game, clock at 0, no pause.
  gp.Restart();
  EXPECT_EQ(gp.Time(), 0);
  EXPECT_FALSE(gp.PauseStatus());
  EXPECT_FALSE(t.window.pausedShown);  // the button and the check mark follow
  EXPECT_EQ(t->cEngine.GetTransTop(), 0);
}

TEST(SessionStart, UnknownGamesAreRefusedAndTheTableStays) {
  test::TestProgram t;
  t.Deal("Spider", 5);
  test::DealRows(t, 1);
  const auto before = test::Snapshot(*t.app);
  EXPECT_FALSE(t->cGamePlay.PlayNumber("Spyder", GameNo::Number(5)));
  ASSERT_EQ(t.dialogs.shown.size(), 1u);
  EXPECT_NE(t.dialogs.shown[0].find("Spyder"), std::string::npos);
  EXPECT_EQ(t.dialogs.titles[0], "Quorvale 6.0");
  EXPECT_EQ(test::Snapshot(*t.app), before);
  EXPECT_EQ(t->cGamePlay.GameName(), "Spider");
  EXPECT_EQ(t->cEngine.GetTransID(), 10);
  EXPECT_TRUE(t->cGamePlay.Game_Running());
}

TEST(SessionStart, RandomGamesUseTheLastGameAndTheRange) {
  test::TestProgram t;
  auto& gp = t->cGamePlay;
  ASSERT_TRUE(gp.PlayRandom());  // a first run has no last game
  EXPECT_EQ(gp.GameName(), "Spider");
  t->cGamePlay.PlayNumber("Scarab", GameNo::Number(3));
  t.settings.WriteInt("Options", "RangeIndex", 1);
  for (int i = 0; i < 50; ++i) {
    gp.PlayRandom();
    EXPECT_EQ(gp.GameName(), "Scarab");
    EXPECT_FALSE(gp.GameNo().IsTyped());
    const double n = gp.GameNo().Value();
    EXPECT_TRUE(n >= 1 && n <= 9) << n;
  }
  t.settings.WriteInt("Options", "RangeIndex", 15);
  gp.PlayRandom("Plaza");
  EXPECT_EQ(gp.GameName(), "Plaza");
  EXPECT_LE(gp.GameNo().Text().size(), 15u);
}

TEST(SessionStart, RecentEntriesSplitAtTheLastDash) {
  test::TestProgram t;
  auto& gp = t->cGamePlay;
  ASSERT_TRUE(gp.PlayString("Spider Two Suit - 0042"));
  EXPECT_EQ(gp.GameName(), "Spider Two Suit");
  EXPECT_TRUE(gp.GameNo().IsTyped());
  EXPECT_EQ(gp.GameNo().Text(), "0042");
  EXPECT_EQ(t->cPlay.table().Deck(), ShuffleDeck(104, 42));
  EXPECT_FALSE(gp.PlayString("Spider"));
  EXPECT_FALSE(gp.PlayString("Spider - x1"));
  EXPECT_EQ(gp.GameName(), "Spider Two Suit");
}

// Saved games with their loading types.
struct SessionFiles : ::testing::Test {
  void SetUp() override {
    t.Deal("Spider", 2024);
    test::DealRows(t, 2);
    t->cGamePlay.Time(95);
    saved = test::Snapshot(*t.app);
    ASSERT_TRUE(t->cEngine.SavetoFile(t.home.File("game.vq0")));
    t->cGamePlay.ClearArea();
  }
  std::string Copy(const char* name) {
    std::filesystem::copy_file(t.home.File("game.vq0"), t.home.File(name));
    return t.home.File(name);
  }
  test::TestProgram t;
  cGamePlay& gp = t->cGamePlay;
  std::vector<int> saved;
};

TEST_F(SessionFiles, AnIncompleteGameComesBackRunningWhereItWas) {
  ASSERT_TRUE(gp.PlayFile(t.home.File("game.vq0"), true));
  EXPECT_EQ(gp.Game_Status(), 1);
  EXPECT_EQ(gp.Game_LoadingType(), 1);
  EXPECT_EQ(gp.Time(), 95);
  EXPECT_EQ(test::Snapshot(*t.app), saved);
  EXPECT_EQ(t->cEngine.GetTransID(), 20);
  EXPECT_EQ(t.window.finishShown, 0);
}

TEST_F(SessionFiles, AFinishedGameIsReplayedByTheForwardTimer) {
  ASSERT_TRUE(gp.PlayFile(Copy("GAME.VQ1"), true));
  // Status, timers and journal as loaded are checked with the saved-game files; here, what follows.
  EXPECT_EQ(gp.Game_Status(), 2);
  EXPECT_FALSE(gp.Game_Running());
  EXPECT_NE(gp.Title().find("] [Finished Game]"), std::string::npos);
  // A finished game keeps the score its file holds.
  EXPECT_EQ(gp.Score(), ReadGameHeader(t.home.File("GAME.VQ1"))->Score);
  // Starting anything else clears it without ending a game.
  t.Deal("Spider", 1);
  EXPECT_EQ(gp.Game_Status(), 1);
}

TEST_F(SessionFiles, APendingGameGoesBackToItsFileWhenItEnds) {
  const std::string pending = Copy("pend.vq0");
  ASSERT_TRUE(gp.PlayPendFile(pending));
  EXPECT_TRUE(std::filesystem::exists(pending));  // kept while its game is on the table
  EXPECT_TRUE(gp.IsPending());
  EXPECT_NE(gp.Title().find("[Pending List Game]"), std::string::npos);
  test::DealRows(t, 1);
  gp.EndGame(0, false);  // Close
  EXPECT_EQ(gp.Game_Status(), 0);
  ASSERT_TRUE(std::filesystem::exists(pending));
  EXPECT_EQ(ReadGameHeader(pending)->Moves, 30);
}

TEST_F(SessionFiles, APendingGameSurvivesAFinishedReplayBeforeIt) {
  const std::string pending = Copy("pend.vq0");
  gp.PlayFile(Copy("done.vq1"), false);
  ASSERT_TRUE(gp.PlayPendFile(pending));
  EXPECT_EQ(gp.PendFile(), pending);
  t.settings.WriteInt("Options", "GameSave", 1);
  gp.Unload();  // a pending game goes back to the list at stop, whatever GameSave says
  EXPECT_TRUE(std::filesystem::exists(pending));
  EXPECT_FALSE(std::filesystem::exists(t->cData.UnFinFile()));
}

TEST_F(SessionFiles, APendingGameThatCannotBeWrittenBackStays) {
  const std::string pending = Copy("pend.vq0");
  ASSERT_TRUE(gp.PlayPendFile(pending));
  std::filesystem::remove(pending);
  std::filesystem::create_directory(pending);  // the old name is taken by a folder now
  EXPECT_FALSE(gp.EndGame(0, false));
  EXPECT_EQ(gp.Game_Status(), 1);
  EXPECT_EQ(t.dialogs.shown.size(), 1u);
  // Nor does a new deal throw it away.
  EXPECT_FALSE(gp.PlayNumber("Spider", GameNo::Number(1)));
  EXPECT_EQ(test::Snapshot(*t.app), saved);
}

TEST(SessionStop, UnloadKeepsARunningGameOnlyWhenItsFileIsWhole) {
  test::TestProgram t;
  t.settings.WriteInt("General", "UnFin", 1);
  t->cGamePlay.Unload();  // no game: only the mark is cleared
  EXPECT_EQ(t->cRegistry.Get(setting::UnFin), 0);
  t.Deal("Spider Two Suit", 31);
  test::DealRows(t, 1);
  t->cGamePlay.Unload();
  EXPECT_EQ(t->cRegistry.Get(setting::UnFin), 1);
  EXPECT_EQ(ReadGameHeader(t->cData.UnFinFile())->Moves, 10);
  EXPECT_EQ(t->cData.UnFinFile(), (t.home.Path() / "data" / "Velmarin Works" / "Quorvale 6.0" / "Unfin.vq0").string());

  test::TestProgram off;
  off.Deal("Spider", 31);
  off.settings.WriteInt("Options", "GameSave", 0);
  off->cGamePlay.Unload();
  EXPECT_EQ(off->cRegistry.Get(setting::UnFin), 0);
  EXPECT_FALSE(std::filesystem::exists(off->cData.UnFinFile()));

  test::TestProgram taken;
  taken.Deal("Spider", 31);
  std::filesystem::create_directories(taken->cData.UnFinFile());  // the name is taken by a folder
  taken->cGamePlay.Unload();
  EXPECT_EQ(taken->cRegistry.Get(setting::UnFin), 0);
  EXPECT_EQ(taken.dialogs.shown.size(), 1u);
}

// With "Any Card" rules a foundation takes an Ace when empty and any card after it, so a
// game is won by double-clicks alone, opening one foundation at a time. Piles stay below
// thirteen cards, so no set leaves by itself meanwhile.
TEST(SessionWin, TheLastCardOnTheFoundationsOpensTheFinishOnce) {
  test::TestProgram t;
  test::PlayWithRules(t, kAnyCard);
  ASSERT_TRUE(test::WinGame(t));
  auto& play = t->cPlay;
  EXPECT_EQ(t->cEngine.TotalGoalCards(), 104);
  for (int f = 0; f < 8; ++f) EXPECT_EQ(play.GetTop(3, f), 12) << f;
  EXPECT_EQ(t.window.finishShown, 1);
  // The won game stays on the table, running, until the finish dialog ends it.
  EXPECT_TRUE(t->cGamePlay.Game_Running());
  EXPECT_EQ(t->cGamePlay.CardsLeft(), 0);
  EXPECT_EQ(t->cGamePlay.Percentage(), 100);
}

}  // namespace
}  // namespace qv
