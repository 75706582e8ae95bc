#include <gtest/gtest.h>

#include <cstdlib>
#include <filesystem>

#include "TestProgram.h"
#include "lists/Favorites.h"
#include "lists/Pending.h"
#include "lists/Recent.h"
#include "scores/Finish.h"
#include "scores/PlayerEdit.h"
#include "scores/Players.h"
#include "scores/StatFigures.h"
#include "session/StartUp.h"
#include "settings/SettingKeys.h"

namespace qv {
namespace {

namespace fs = std::filesystem;

// A store of two players, fixed lines and a clock in UTC.
struct Store : ::testing::Test {
  void SetUp() override {
    setenv("TZ", "UTC", 1);
    tzset();
    SetPlayer(t->cRegistry, 1, "Player1", true);
    SetPlayer(t->cRegistry, 2, "Ann", false);
  }
  void Lines(const std::string& player, const std::string& text) {
    test::WriteFile(t->cScore.ScoreFile(player, FolderUse::Write), text);
  }
  ScoreRec Rec(int32_t score, int16_t won, int32_t time = 10, int32_t moves = 10) {
    return {"11/17/2026", "Spider", GameNo::Number(uint64_t(score + 1000)), time, moves, score, won, {}, {}};
  }
  test::TestProgram t;
};

TEST_F(Store, LinesKeepTheirFormAndBrokenOnesAreSkippedAlone) {
  const std::string good = "\"11/17/2026 6:41:26 AM\",\"Spider\",123456,754,212,683,1";
  const std::string typed = "\"11/18/2026 9:05:00 PM\",\"Spider Two Suit\",\"000123\",100,50,-7,0";
  for (const std::string& line : {good, typed}) EXPECT_EQ(ScoreLine(ReadScoreLine(line).value()), line + "\r\n");
  EXPECT_EQ(ReadScoreLine(good)->Day, (CivilDate{2026, 11, 17}));
  const auto quoted = ReadScoreLine("\"1/2/2026\",\"Spider, Plus\",\"12.5\",1,2,3,0").value();
  EXPECT_EQ(std::tuple(quoted.GameName, quoted.GameNo), std::tuple("Spider, Plus", GameNo::Typed("12.5")));
  for (const char* bad : {"\"1/2/2026\",\"Spider\",1,2,3,4", "\"1/2/2026\",\"Spider\",1,2,3,4294967296,1",
                          "\"2/30/2026\",\"Spider\",1,2,3,4,1", "\"1/2/2026 25:00:00\",\"Spider\",1,2,3,4,1",
                          "\"1/2/2026\",\"Spider\",1,2,3,4,1,9", "1/2/2026,\"Spider\",1,2,3,4,1"})
    EXPECT_FALSE(ReadScoreLine(bad)) << bad;

  // A file with bad lines, a Windows-1252 name and no last line end: the good lines count.
  Lines("Player1", good + "\r\ngarbage\r\n\"1/2/2026\",\"Caf\xe9\",5,1,2,3,0\r\n" + typed);
  auto& s = t->cScore;
  s.OpenAllScore();
  ASSERT_EQ(s.ScoreTop(), 3);
  EXPECT_EQ(std::tuple(s.ScoreItem(2).GameName, s.ScoreItem(3).Player, s.Skipped().size(), s.AllTotals().Score),
            std::tuple("Caf\u00e9", "Player1", 1u, 683 + 3 - 7));

  // The next game ends the cut line first; the file is beside the data folder.
  t.Deal("Spider", 42);
  t->cScore.AddScore(0);
  const std::string path = t->cData.AppDir() + "Player1.sre";
  EXPECT_EQ(fs::path(path).filename(), "Quorvale 6.0Player1.sre");
  const std::string text = test::ReadFile(path);
  EXPECT_NE(text.find(typed + "\r\n\"11/18/2026 11:06:40 AM\",\"Spider\",42,0,0,0,0\r\n"), std::string::npos);
}

TEST_F(Store, AScoreThatCannotBeWrittenIsToldOncePerRun) {
  fs::create_directories(t->cScore.ScoreFile("Player1", FolderUse::Write));  // the name is taken by a folder
  t.Deal("Spider", 42);
  t->cScore.AddScore(0);
  t->cScore.AddScore(1);
  EXPECT_TRUE(t.dialogs.shown.size() == 1u && fs::is_directory(t->cScore.ScoreFile("Player1")));
}

TEST_F(Store, SortTakesTheLaterOfEqualsAndFinSortKeepsZeroOutOfFreeSlots) {
  auto& s = t->cScore;
  std::string lines;
  for (int i = 0; i < 21; ++i) lines += ScoreLine(Rec(50, 1, i + 1));
  lines += ScoreLine(Rec(0, 1)) + ScoreLine(Rec(-5, 1));
  Lines("Player1", lines);
  Lines("Ann", ScoreLine(Rec(60, 0, 0)) + ScoreLine(Rec(40, 1, 0, 3)));
  s.OpenAllScore();
  s.Sort("", "", 1);
  EXPECT_EQ(std::tuple(s.TopItem(1).Time, s.TopItem(20).Time), std::tuple(21, 2));  // the last of 21 equals on top
  s.Sort("", "Ann", 0);
  EXPECT_EQ(std::tuple(s.TopItem(1).Score, s.TopItem(2).Score, s.TopItem(3).Date), std::tuple(60, 40, ""));
  s.Sort("Spider", "", 0);
  EXPECT_EQ(s.TopItem(1).Score, 60);
  // By time: Ann's won game of 0 s goes ahead of the filled slots; on an empty list it would not.
  s.FinSort(true, false);
  EXPECT_EQ(std::tuple(s.TopItem(1).Time, s.TopItem(2).Time), std::tuple(0, 1));
  s.FinSort(false, true);
  EXPECT_EQ(s.TopItem(1).Moves, 3);
  Lines("Player1", ScoreLine(Rec(5, 1, 0)) + ScoreLine(Rec(5, 1, 9)));
  Lines("Ann", "");
  s.OpenAllScore();
  s.FinSort(true, false);
  EXPECT_EQ(std::tuple(s.TopItem(1).Time, s.TopItem(2).Date), std::tuple(9, ""));
  // Won games of 0 points or fewer never reach the list by score.
  Lines("Player1", ScoreLine(Rec(0, 1)) + ScoreLine(Rec(-5, 1)) + ScoreLine(Rec(1, 1)));
  s.OpenAllScore();
  s.Sort("", "", 1);
  EXPECT_EQ(std::tuple(s.TopItem(1).Score, s.TopItem(2).Date), std::tuple(1, ""));
}

TEST(ScoreDates, CalendarDifferencesAndLabels) {
  const CivilDate today{2026, 11, 7};
  ScoreRec r;
  // 23:59 yesterday is a day old at 00:01; months count by month; the future shows only under all.
  struct Case { CivilDate day; const char* key; bool kept; };
  for (const Case& c : {Case{{2026, 11, 6}, "3d", true}, {{2026, 11, 6}, "t", false}, {{2026, 10, 31}, "7d", true},
                        {{2026, 10, 30}, "7d", false}, {{2026, 6, 30}, "5m", true}, {{2026, 5, 31}, "5m", false},
                        {{2026, 11, 8}, "30d", false}, {{2026, 11, 8}, "", true}}) {
    r.Day = c.day;
    EXPECT_EQ(LogKeeps(r, c.key, today), c.kept) << c.key << " " << c.day.month << "/" << c.day.day;
  }
  EXPECT_EQ(std::tuple(MonthsBack({2026, 3, 31}, 1), MonthsBack({2024, 3, 31}, 1), MonthsBack({2026, 1, 15}, 13),
                       DaysBack({2026, 3, 1}, 1)),
            std::tuple(CivilDate{2026, 2, 28}, CivilDate{2024, 2, 29}, CivilDate{2024, 12, 15}, CivilDate{2026, 2, 28}));
  EXPECT_EQ(std::tuple(PeriodLabel(today, "d"), PeriodLabel({2009, 1, 3}, "m"), PeriodLabel(today, "yyyy"), ShortDate(today)),
            std::tuple("Nov 07", "Jan 09", "2026", "11/7/2026"));
  EXPECT_EQ(ReadGeneralDate("12/31/2026 12:00:00 AM"), (CivilDate{2026, 12, 31}));
}

TEST_F(Store, FiguresCutTowardZeroAndRoundExactTies) {
  TotalsRec t2{.Played = 2, .Won = 0, .Lost = 2, .Score = -7, .Moves = 13, .Time = 3};
  const auto rows = GeneralRows(t2);
  ASSERT_EQ(rows.size(), 13u);
  // Score per game, time per game (1.5 s: to the even second), moves and score per hour.
  EXPECT_EQ(std::tuple(rows[7].second, rows[8].second, rows[10].second, rows[11].second),
            std::tuple("-3", "0:00:02", "15600", "-8400"));
  EXPECT_EQ(GeneralRows({})[12].second, "0%");
  using P = std::pair<TotalsRec, const char*>;
  for (const auto& [totals, want] : {P{{.Played = 3, .Won = 2}, "66.67%"}, P{{.Played = 32, .Won = 1}, "3.12%"},
                                P{{.Played = 8, .Won = 1}, "12.5%"}, P{{.Played = 200, .Won = 1}, "0.5%"}})
    EXPECT_EQ(GamePercent(totals), want);
  for (const auto& [totals, want] : {P{{.Played = 3, .Won = 2}, "67%"}, P{{.Played = 8, .Won = 1}, "12%"},
                                P{{.Played = 40, .Won = 1}, "2%"}})
    EXPECT_EQ(PlayerPercent(totals), want);

  // Periods: a whole day, month or year each, oldest first.
  Lines("Player1", "\"11/18/2026 11:59:59 PM\",\"Spider\",1,10,2,5,1\r\n\"11/17/2026\",\"Spider\",2,10,2,7,0\r\n"
                   "\"10/31/2026\",\"Spider\",3,10,2,9,1\r\n");
  t->cScore.OpenAllScore();
  const auto days = PeriodRows(t->cScore, PeriodItems()[0], {2026, 11, 18});
  ASSERT_EQ(days.size(), 5u);
  EXPECT_EQ(std::tuple(days[4].Label, days[4].Played, days[3].Score), std::tuple("Nov 18", 1, 7));
  const auto months = PeriodRows(t->cScore, PeriodItems()[3], {2026, 11, 18});
  EXPECT_EQ(std::tuple(months[3].Label, months[3].Won, months[4].Played), std::tuple("Oct 26", 1, 2));
  EXPECT_EQ(t->cScore.PeriodTotals("11/17/2026 1:00:00 PM", "yyyy").Played, 3);
}

TEST_F(Store, TheReportIsByteForByte) {
  Lines("Player1", "\"11/17/2026 6:41:26 AM\",\"Spider\",123456,754,212,683,1\r\n"
                   "\"11/18/2026 9:05:00 PM\",\"Spider Two Suit\",\"000123\",100,50,-7,0\r\n");
  Lines("Ann", "\"1/2/2026\",\"Spider Single Suit\",-5,30,5,1,0\r\nbroken\r\n");
  t.dialogs.answers = {};
  const std::string path = t.home.File("Scoreboard.txt");
  ASSERT_TRUE(t->cScore.ExportStat(path));
  EXPECT_EQ(t.dialogs.shown.back(), "Statistics Successfully Exported to " + path);
  EXPECT_EQ(t->cScore.ScoreTop(), 0);  // the store is closed again
  const std::string expected =
      "Quorvale 6.0 Score Board\r\n"
      " \r\n*************************\r\n \r\n"
      "Created By    Player1\r\n"
      "Created Date  11/18/2026 11:06:40 AM\r\n"
      " \r\n----------------------------------\r\n \r\n"
      "General Statistics\r\n------------------\r\n"
      "Played        Won           Lost          Time          Moves         Score\r\n"
      " 3             1             2            0:14:44        267           677 \r\n"
      " \r\n \r\n"
      "Player Statistics\r\n-----------------\r\n"
      "Player        Played        Won           Lost          Time          Moves         Score\r\n"
      "Player1        2             1             1            0:14:14        262           676 \r\n"
      "Ann            1             0             1            0:00:30        5             1 \r\n"
      " \r\n \r\n"
      "Games Statistics\r\n----------------\r\n"
      "Game                     Played           Won           Time          Moves         Score\r\n"
      "Spider                    1                1            0:12:34        212           683 \r\n"
      "Spider Single Suit        1                0            0:00:30        5             1 \r\n"
      "Spider Two Suit           1                0            0:01:40        50           -7 \r\n"
      "Scarab                    0                0            0:00:00        0             0 \r\n"
      "Plaza                     0                0            0:00:00        0             0 \r\n"
      "Coral                     0                0            0:00:00        0             0 \r\n"
      "Spider Plus               0                0            0:00:00        0             0 \r\n"
      " \r\n \r\n"
      "Full Statistics\r\n--------------\r\n"
      "Date          Game          Player        Status        Score         Moves         Time          Game No\r\n"
      "11/17/2026    Spider        Player1       Won            683           212          0:12:34      123456 \r\n"
      "11/18/2026    Spider Two S  Player1       Lost          -7             50           0:01:40     000123\r\n"
      "1/2/2026      Spider Singl  Ann           Lost           1             5            0:00:30     -5 \r\n";
  EXPECT_EQ(test::ReadFile(path), expected);
}

TEST_F(Store, PlayersKeepTheirSlotsAndTheirFiles) {
  auto& app = *t.app;
  Lines("Ann", "\"1/2/2026\",\"Spider\",5,1,2,3,0\r\n");
  // Names compare with case.
  for (const auto& [name, said] : {std::pair{"", "Please Enter a Valid Name"}, {"a/b", "Please Enter a Valid Name"},
                                   {"Ann", "Player Exists !"}, {"ann", ""}})
    EXPECT_EQ(AddPlayer(app, name), said) << name;
  EXPECT_EQ((std::tuple{RenamePlayer(app, "Ann", "Ann"), RenamePlayer(app, "Player1", "Bo")}), std::tuple("Player Exists !", ""));
  EXPECT_EQ(std::tuple(GetCurPlayer(app.cRegistry), RenamePlayer(app, "Ann", "Cy")), std::tuple("Bo", ""));  // stays current
  EXPECT_FALSE(fs::exists(t->cScore.ScoreFile("Ann")));
  EXPECT_EQ(test::ReadFile(t->cScore.ScoreFile("Cy")), "\"1/2/2026\",\"Spider\",5,1,2,3,0\r\n");
  // A rename onto a name whose file is still there adds the games to it.
  Lines("Dee", "\"1/3/2026\",\"Spider\",6,1,2,3,0\r\n");
  EXPECT_EQ(RenamePlayer(app, "Cy", "Dee"), "");
  t->cScore.OpenAllScore();
  EXPECT_EQ(t->cScore.ScoreTop(), 2);
  EXPECT_EQ((std::tuple{DeletePlayer(app, "Bo"), DeletePlayer(app, "Dee")}),
            std::tuple("The current player cannot be deleted.", ""));
  EXPECT_FALSE(fs::exists(t->cScore.ScoreFile("Dee")));
  EXPECT_EQ(std::tuple(GetPlayer(app.cRegistry, 2), PlayerCount(app.cRegistry)), std::tuple("ann", 2));  // slot 3 moved up
  for (int i = 3; i <= 20; ++i) AddPlayer(app, "P" + std::to_string(i));
  EXPECT_EQ(AddPlayer(app, "P21"), "Maximum 20 Players Only!");
}

TEST_F(Store, AWinIsRecordedBeforeTheFinishShowsAndItsCloseKeepsTheGame) {
  StartUp(*t.app);
  t->cRegistry.Set(setting::SaveFile, 1);
  t->cRegistry.Set(setting::AddtoFav, 1);
  test::PlayWithRules(t, {.HOrder = 5, .MOrder = 5});
  int32_t timeAtWin = -1;
  size_t linesAtWin = 0;
  t.window.onFinish = [&] {
    timeAtWin = t->cGamePlay.Time();
    linesAtWin = test::ReadFile(t->cScore.ScoreFile("Player1")).size();
    EXPECT_FALSE(t.window.TimerEnabled(Timer::Game));
    EXPECT_EQ(t->cRegistry.Get(setting::UnFin), 0);
  };
  ASSERT_TRUE(test::WinGame(t));
  EXPECT_TRUE(t.window.finishShown == 1 && linesAtWin > 0u);
  t.clock.ms += 5000;
  t->keeper.Tick();  // a won table is never written again
  EXPECT_EQ(t->cRegistry.Get(setting::UnFin), 0);
  CloseFinish(*t.app, FinishSavePath(*t.app));
  EXPECT_EQ(std::tuple(t->cGamePlay.Game_Status(), t->cScore.SesTop(), t->cScore.SesItem(1).Won), std::tuple(0, 1, 1));
  t->cScore.OpenAllScore();
  ASSERT_EQ(t->cScore.ScoreTop(), 1);
  EXPECT_EQ(t->cScore.ScoreItem(1).Time, timeAtWin);
  const std::string saved = t->cData.SavedFolder() + "/Test Rules-1.vq1";
  EXPECT_TRUE(fs::exists(saved) && RecentMenuEntries(*t.app, kRecentSaved).at(0) == saved);
  EXPECT_EQ(ReadFavFile(t->cData.FavFolder() + "/Test Rules - 1")->GameName, "Test Rules");
  // The stop that follows leaves nothing to come back.
  ShutDown(*t.app);
  EXPECT_EQ(std::tuple(t->cScore.SesTop(), t->cRegistry.Get(setting::UnFin)), std::tuple(1, 0));
}

TEST_F(Store, AWonPendingGameLeavesTheListForGood) {
  test::PlayWithRules(t, {.HOrder = 5, .MOrder = 5});
  MoveToPending(*t.app);
  ASSERT_EQ(GetPendingFiles(*t.app).size(), 1u);
  const std::string pending = GetPendingFiles(*t.app)[0];
  ASSERT_TRUE(t->cGamePlay.PlayPendFile(pending));
  std::vector<std::string> menuAtWin;
  t.window.onFinish = [&] {
    for (const auto& e : PendingMenuEntries(*t.app)) menuAtWin.push_back(e.caption);
    CloseFinish(*t.app, "");
  };
  ASSERT_TRUE(test::WinGame(t));
  EXPECT_TRUE(menuAtWin.empty() && !fs::exists(pending) && PendingMenuEntries(*t.app).empty());
  t->cScore.OpenAllScore();
  EXPECT_EQ(t->cScore.ScoreTop(), 1);  // the win counts once
}

}  // namespace
}  // namespace qv
