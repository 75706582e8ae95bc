#include <gtest/gtest.h>

#include <cstdlib>
#include <ctime>
#include <map>
#include <random>
#include <tuple>

#include "TestProgram.h"
#include "scores/Players.h"
#include "session/HistoryReport.h"
#include "session/MoveText.h"

namespace qv {
namespace {

TransRec Rec(int pic, int sPile, int sPos, int dPile, int dPos, int mCards, int tMod, int multi = 0) {
  return {static_cast<int16_t>(pic), 0, static_cast<int16_t>(sPile), static_cast<int16_t>(sPos), 0,
          static_cast<int16_t>(dPile), static_cast<int16_t>(dPos), static_cast<int16_t>(mCards), tMod,
          static_cast<int16_t>(multi)};
}

std::vector<std::string> Lines(const std::string& text) {
  std::vector<std::string> lines;
  for (size_t at = 0, end; (end = text.find("\r\n", at)) != std::string::npos; at = end + 2)
    lines.push_back(text.substr(at, end - at));
  return lines;
}

// 21 moves of Spider 482913 in 2 min 17 s: two dealt rows and one move, nothing home.
void PlayTheExample(test::TestProgram& t) {
  setenv("TZ", "UTC", 1);
  tzset();
  t.clock.now = 1794897686;  // 11/17/2026 6:41:26 AM
  SetCurPlayer(t->cRegistry, "Player1");
  t.Deal("Spider", 482913);
  test::DealRows(t, 2);
  ASSERT_TRUE(test::MakeAnyLegalMove(t));
  t->cGamePlay.Time(137);
}

TEST(HistoryReport, ByteForByte) {
  test::TestProgram t;
  PlayTheExample(t);
  const HistoryHead head = HistoryHeadOf(*t.app);
  // The journal of the example: record 1 is the single card from pile 3, position 5 to
  // pile 7, position 9, that uncovered a card; then a group of four, and one undone.
  t->cEngine.LoadRecords({Rec(23, 3, 5, 7, 9, 0, 3), Rec(40, 2, 3, 0, 7, 3, 0)});
  EXPECT_EQ(HistoryReport(head, t->cEngine),
            "Game Name: Spider\r\n"
            "Game Number:  482913 \r\n"
            "Player: Player1\r\n"
            "Moves:  21 \r\n"
            "Time: 0:02:17\r\n"
            "Score: -56 \r\n"
            "Date :11/17/2026 6:41:26 AM\r\n"
            "-------Game History-------\r\n"
            " 1   Tableau (Pile 4, Card 6)  ->Tableau (Pile 8, Card 10)  1 Card Moved\r\n"
            " 2   Tableau (Pile 3, Card 4)  ->Tableau (Pile 1, Card 8)  4 Cards Moved\r\n");

  // A number typed as digits stays bare; undone records are reported, while Moves is the cursor.
  t->cGamePlay.GameNo(GameNo::Typed("482913"));
  const auto lines = Lines(HistoryReport(HistoryHeadOf(*t.app), t->cEngine));
  ASSERT_EQ(lines.size(), 10u);
  EXPECT_EQ(std::tuple(lines[1], lines[3]), std::tuple("Game Number: 482913", "Moves:  0 "));
}

TEST(HistoryReport, ExportWritesTheReportAndKeepsAFileOnFailure) {
  test::TestProgram t;
  PlayTheExample(t);
  const std::string path = t.home.File("Spider-482913.txt");
  ASSERT_TRUE(ExportHistory(*t.app, path));
  const auto lines = Lines(test::ReadFile(path));
  ASSERT_EQ(lines.size(), 8u + 21u);
  EXPECT_EQ(std::tuple(lines[3], lines[8].substr(0, 21)), std::tuple("Moves:  21 ", " 1   Stock (Pile 1, C"));
  std::string error;
  EXPECT_FALSE(ExportHistory(*t.app, t.home.File("no folder/x.txt"), &error));
  EXPECT_FALSE(error.empty());
}

TEST(MoveText, RowsLabelsAndTitleOfTheMovesManager) {
  test::TestProgram t;
  t.Deal("Spider", 482913);
  test::DealRows(t, 1);
  const QuickMoveRow start = QuickMoveRowOf(*t.app, 0);
  EXPECT_EQ(std::tuple(start.moves, start.source, start.destination, start.cards),
            std::tuple("Start", "Name :Spider", "Game No.:482913", ""));
  // A dealt row: the Stock's top card goes to pile 0, counted from 0 here; nine records
  // inside the step, the tenth ends it.
  const QuickMoveRow first = QuickMoveRowOf(*t.app, 1);
  EXPECT_EQ(std::tuple(first.source, first.destination, first.cards, first.inner),
            std::tuple("Stock (Pile 0, Card 59)", "Tableau (Pile 0, Card 5)", "1", true));
  EXPECT_FALSE(QuickMoveRowOf(*t.app, 10).inner);

  const PositionTexts p = PositionTextsOf(*t.app, 10), s = PositionTextsOf(*t.app, 0);
  EXPECT_EQ(std::tuple(p.text1, p.text2, p.text3, p.title),
            std::tuple("Stock (Pile 0, Card 50) -> Tableau (Pile 9, Card 4)", "Move : 10", "Cards Moved : 1",
                       "Move: 10 - Stock (Pile 0, Card 50) -> Tableau (Pile 9, Card 4)"));
  EXPECT_EQ(std::tuple(s.title, s.text3), std::tuple("Move: 0 - Game Name : Spider - Game No.: 482913", "Cards Moved : 0"));
  EXPECT_EQ(std::tuple(AreaName(3), AreaName(4)), std::tuple("Foundation", "Reserve"));
}

// For random legal games: wherever MoveTo lands, with or without the glide of steps, is a
// step's end, the nearest one in the walk's direction, and the table is exactly the one
// that stood there in play. A move from there drops the undone records.
TEST(MoveWalk, EveryLandingIsTheTableOfPlay) {
  for (uint64_t number : {7u, 482913u, 99u}) {
    test::TestProgram t;
    t.Deal("Spider", number);
    std::mt19937 rng(static_cast<unsigned>(number));
    std::map<int, std::vector<int>> played{{0, test::Snapshot(*t.app)}};
    auto& e = t->cEngine;
    for (int i = 0; i < 40; ++i) {
      if (rng() % 6 == 0 || !test::MakeAnyLegalMove(t)) test::DealRows(t, 1);
      played[e.GetTransID()] = test::Snapshot(*t.app);
    }
    const int top = e.GetTransTop();
    ASSERT_GT(top, 40);
    for (int k = 0; k < 25; ++k) {
      const int from = e.GetTransID(), to = static_cast<int>(rng() % (top + 1));
      e.MoveTo(to, k % 2 == 0);
      const int at = e.GetTransID();
      ASSERT_TRUE(played.count(at)) << "landed inside a step at " << at;
      if (to > from) {
        EXPECT_EQ(played.lower_bound(to)->first, at);
      } else if (to < from) {
        EXPECT_EQ(std::prev(played.upper_bound(to))->first, at);
      }
      EXPECT_EQ(test::Snapshot(*t.app), played[at]) << "at " << at;
      EXPECT_EQ(e.GetTransTop(), top);
    }
    e.MoveTo(played.upper_bound(top / 2)->first);
    const int middle = e.GetTransID();
    if (!test::MakeAnyLegalMove(t)) test::DealRows(t, 1);
    EXPECT_GT(e.GetTransID(), middle);
    EXPECT_EQ(e.GetTransTop(), e.GetTransID());
  }
}

}  // namespace
}  // namespace qv
