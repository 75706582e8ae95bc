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

// Ten moves in five minutes, -105, is worked through by the command-line tests.
TEST(SessionScore, WorkedScoresRoundHalvesToEven) {
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

struct SessionStart : ::testing::Test {
  test::TestProgram t;
  cGamePlay& gp = t->cGamePlay;
};

TEST_F(SessionStart, ANewDealRunsTheClockAndRemembersTheGame) {
  t.Deal("Coral", 77);
  EXPECT_EQ(std::tuple(gp.Game_Status(), gp.Game_Running(), t.window.TimerEnabled(Timer::Game), gp.LastGName(),
                       t->cCustom.MOrder),
            std::tuple(1, true, true, "Coral", 2));
  gp.TickGame();
  gp.PauseGame(true);
  EXPECT_EQ(std::tuple(t.window.TimerEnabled(Timer::Game), t.window.pausedShown), std::tuple(false, true));
  gp.TickGame();
  EXPECT_EQ(gp.Time(), 1);
  // Dealing again gives up the game on the table: a new game, clock at 0, no pause; the
  // button and the check mark follow.
  gp.Restart();
  EXPECT_EQ(std::tuple(gp.Time(), gp.PauseStatus(), t.window.pausedShown, t->cEngine.GetTransTop()),
            std::tuple(0, false, false, 0));
}

TEST_F(SessionStart, UnknownGamesAreRefusedAndTheTableStays) {
  t.Deal("Spider", 5);
  test::DealRows(t, 1);
  const auto before = test::Snapshot(*t.app);
  EXPECT_FALSE(t->cGamePlay.PlayNumber("Spyder", GameNo::Number(5)));
  ASSERT_EQ(t.dialogs.shown.size(), 1u);
  EXPECT_NE(t.dialogs.shown[0].find("Spyder"), std::string::npos);
  EXPECT_EQ(t.dialogs.titles[0], "Quorvale 6.0");
  EXPECT_EQ(test::Snapshot(*t.app), before);
  EXPECT_EQ(std::tuple(t->cGamePlay.GameName(), t->cEngine.GetTransID(), t->cGamePlay.Game_Running()),
            std::tuple("Spider", 10, true));
}

TEST_F(SessionStart, RandomGamesUseTheLastGameAndTheRange) {
  ASSERT_TRUE(gp.PlayRandom());  // a first run has no last game
  EXPECT_EQ(gp.GameName(), "Spider");
  t->cGamePlay.PlayNumber("Scarab", GameNo::Number(3));
  t.settings.WriteInt("Options", "RangeIndex", 1);
  for (int i = 0; i < 50; ++i) {
    gp.PlayRandom();
    const double n = gp.GameNo().Value();
    EXPECT_TRUE(gp.GameName() == "Scarab" && !gp.GameNo().IsTyped() && n >= 1 && n <= 9) << gp.GameName() << n;
  }
  t.settings.WriteInt("Options", "RangeIndex", 15);
  gp.PlayRandom("Plaza");
  EXPECT_EQ(gp.GameName(), "Plaza");
  EXPECT_LE(gp.GameNo().Text().size(), 15u);
}

TEST_F(SessionStart, RecentEntriesSplitAtTheLastDash) {
  ASSERT_TRUE(gp.PlayString("Spider Two Suit - 0042"));
  EXPECT_EQ(std::tuple(gp.GameName(), gp.GameNo()), std::tuple("Spider Two Suit", GameNo::Typed("0042")));
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
  EXPECT_EQ(std::tuple(gp.Game_Status(), gp.Game_LoadingType(), gp.Time(), t->cEngine.GetTransID(), t.window.finishShown),
            std::tuple(1, 1, 95, 20, 0));
  EXPECT_EQ(test::Snapshot(*t.app), saved);
}

TEST_F(SessionFiles, AFinishedGameIsReplayedByTheForwardTimer) {
  EXPECT_FALSE(IsFinishedFileName("q1", ".vq1"));
  ASSERT_TRUE(gp.PlayFile(Copy("GAME.VQ1"), true));  // the extension's case does not matter
  // Twenty records to replay, none replayed yet; the forward timer runs, the game's does not.
  EXPECT_EQ(std::tuple(gp.Game_Status(), t.window.TimerEnabled(Timer::Forward), t.window.TimerEnabled(Timer::Game),
                       t->cEngine.GetTransTop(), t->cEngine.GetTransID(), gp.Game_Running()),
            std::tuple(2, true, false, 20, 0, false));
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
  EXPECT_TRUE(std::filesystem::exists(pending) && gp.IsPending());  // kept while its game is on the table
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
  EXPECT_EQ(std::tuple(gp.Game_Status(), t.dialogs.shown.size()), std::tuple(1, 1u));
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
  EXPECT_EQ(std::tuple(t->cRegistry.Get(setting::UnFin), ReadGameHeader(t->cData.UnFinFile())->Moves), std::tuple(1, 10));
  EXPECT_EQ(t->cData.UnFinFile(), (t.home.Path() / "data" / "Velmarin Works" / "Quorvale 6.0" / "Unfin.vq0").string());

  test::TestProgram off;
  off.Deal("Spider", 31);
  off.settings.WriteInt("Options", "GameSave", 0);
  off->cGamePlay.Unload();
  EXPECT_TRUE(off->cRegistry.Get(setting::UnFin) == 0 && !std::filesystem::exists(off->cData.UnFinFile()));

  test::TestProgram taken;
  taken.Deal("Spider", 31);
  std::filesystem::create_directories(taken->cData.UnFinFile());  // the name is taken by a folder
  taken->cGamePlay.Unload();
  EXPECT_EQ(std::tuple(taken->cRegistry.Get(setting::UnFin), taken.dialogs.shown.size()), std::tuple(0, 1u));
}

// With "Any Card" rules a foundation takes an Ace when empty and any card after it, so a
// game is won by double-clicks alone, opening one foundation at a time. Piles stay below
// thirteen cards, so no set leaves by itself meanwhile.
TEST(SessionWin, PercentageAndCardsLeftFollowTheFoundationsAndTheLastCardOpensTheFinishOnce) {
  test::TestProgram t;
  EXPECT_EQ(t->cGamePlay.Percentage(), 0);  // no game: nothing divides by zero
  t.Deal("Spider", 9);
  EXPECT_EQ(std::tuple(t->cGamePlay.Percentage(), t->cGamePlay.CardsLeft()), std::tuple(0, 104));
  test::PlayWithRules(t, kAnyCard);
  ASSERT_TRUE(test::CompleteASet(t));
  EXPECT_EQ(std::tuple(t->cGamePlay.Percentage(), t->cGamePlay.CardsLeft()), std::tuple(12, 91));  // 12.5 to the even 12
  test::TestProgram won;
  test::PlayWithRules(won, kAnyCard);
  ASSERT_TRUE(test::WinGame(won));
  EXPECT_EQ(won->cEngine.TotalGoalCards(), 104);
  for (int f = 0; f < 8; ++f) EXPECT_EQ(won->cPlay.GetTop(3, f), 12) << f;
  // The won game stays on the table, running, until the finish dialog ends it.
  EXPECT_EQ(std::tuple(won.window.finishShown, won->cGamePlay.Game_Running(), won->cGamePlay.CardsLeft(),
                       won->cGamePlay.Percentage()),
            std::tuple(1, true, 0, 100));
}

}  // namespace
}  // namespace qv
