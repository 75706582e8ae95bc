#include <gtest/gtest.h>

#include <algorithm>
#include <deque>
#include <optional>
#include <set>
#include <random>

#include "TestProgram.h"
#include "engine/Pointer.h"
#include "engine/Table.h"
#include "engine/cGames.h"
#include "engine/mStudio.h"
#include "session/Commands.h"
#include "solver/Hint.h"
#include "solver/Solver.h"
#include "solver/WinnableBack.h"

namespace qv {
namespace {

// A card asked for by value: rank (0 Ace .. 12 King), suit, the set it comes from
// (-1: any), face.
struct Want {
  int num, suit = 0, suitpile = -1;
  bool up = true;
};

// A table of some rules laid out by hand: tableau piles bottom up, the Stock (its last
// card dealt first), and full foundations for the sets not named elsewhere.
struct Laid {
  Laid(const test::Rules& r, const std::vector<std::vector<Want>>& piles, const std::vector<Want>& stock = {},
       const std::vector<std::vector<Want>>& foundations = {}) {
    t->cCustom.Home(r.HPiles, r.HOrder, r.HSpace, r.HAK, r.HMulti, r.Suits, r.MOrder);
    SetupGame(t->cCustom, games);
    table.Make(games, GameNo::Number(1));
    auto take = [&](const Want& w) {
      for (int pic = 0; pic < 104; ++pic) {
        const CardRec& c = table.Card(pic);
        if (!used[pic] && c.Num == w.num && c.Suit == w.suit && (w.suitpile < 0 || c.Suitpile == w.suitpile)) {
          used[pic] = true;
          return pic;
        }
      }
      ADD_FAILURE() << "no card " << w.num << "/" << w.suit << "/" << w.suitpile;
      return 0;
    };
    for (size_t p = 0; p < piles.size(); ++p)
      for (size_t q = 0; q < piles[p].size(); ++q)
        table.UpdatePlace(take(piles[p][q]), 0, static_cast<int>(p), static_cast<int>(q), piles[p][q].up, false);
    for (size_t q = 0; q < stock.size(); ++q) table.UpdatePlace(take(stock[q]), 1, 0, static_cast<int>(q), false, false);
    for (size_t f = 0; f < foundations.size(); ++f)
      for (size_t q = 0; q < foundations[f].size(); ++q)
        table.UpdatePlace(take(foundations[f][q]), 3, static_cast<int>(f), static_cast<int>(q), true, false);
    // Every card not placed yet lies on the foundation of its set, Ace first: a set
    // named nowhere else is there whole.
    for (int num = 0; num < 13; ++num)
      for (int pic = 0; pic < 104; ++pic) {
        const CardRec& c = table.Card(pic);
        if (!used[pic] && c.Num == num) table.UpdatePlace(pic, 3, c.Suitpile, table.GetTop(3, c.Suitpile) + 1, true, false);
      }
  }
  SolverResult Solve(SolverBudget b = {}) const { return qv::Solve(SolverGame(table, games, 1000), b); }

  test::TestProgram t;
  cGames games;
  Table table;
  std::vector<bool> used = std::vector<bool>(104);
};

// Twelve cards of one set from the King down to the Two.
std::vector<Want> KingToTwo(int suitpile, int suit = 0) {
  std::vector<Want> cards;
  for (int n = 12; n >= 1; --n) cards.push_back({n, suit, suitpile});
  return cards;
}

const test::Rules kOneSuit{10, 4, 13, 0, 1, 0, 0};

TEST(Solver, HandMadeWinsAndLosses) {
  {  // Won in one move: the Ace lands on its run and the last set leaves.
    Laid a(kOneSuit, {KingToTwo(3), {{0, 0, 3}}});
    const SolverResult r = a.Solve();
    ASSERT_EQ(r.verdict, Verdict::Winnable);
    EXPECT_EQ(r.solution, (std::vector<SolverMove>{{SolverMove::Drag, 0, 1, 0, 0}}));
    // The journal's room counts: the set's 13 records after the drag's one must fit, or
    // the set stays on its pile and the game cannot be won.
    EXPECT_EQ(Solve(SolverGame(a.table, a.games, 14), {}).verdict, Verdict::Winnable);
    EXPECT_EQ(Solve(SolverGame(a.table, a.games, 1), {}).verdict, Verdict::Lost);
  }
  {  // No move at all: Kings, Jacks, Nines, Sevens and Fives on top, nothing under them moves.
    std::vector<std::vector<Want>> piles;
    const int tops[] = {12, 10, 8, 6, 4};
    const int under[] = {0, 1, 2, 3, 5, 7, 9, 11};
    for (int i = 0; i < 10; ++i) piles.push_back({{tops[i / 2], 2 + i % 2, 6 + i % 2}});
    for (int i = 0; i < 16; ++i)
      piles[i % 10].insert(piles[i % 10].begin(), Want{under[i / 2], 2 + i % 2, 6 + i % 2, false});
    Laid a({10, 0, 13, 0, 1, 2, 0}, piles);
    const SolverResult r = a.Solve();
    EXPECT_EQ(std::tuple(r.verdict, r.positions), std::tuple(Verdict::Lost, 1));
  }
  {  // A double-clicked Ace has to come back from its foundation onto its run.
    Laid a(kOneSuit, {KingToTwo(0)}, {}, {{{0, 0, 0}}});
    const SolverResult r = a.Solve();
    ASSERT_EQ(r.verdict, Verdict::Winnable);
    EXPECT_EQ(r.solution, (std::vector<SolverMove>{{SolverMove::Drag, 3, 0, 0, 0}}));
  }
  {  // A set may hold face-down cards: the King and Queen below leave with it.
    std::vector<Want> run = KingToTwo(5);
    run[0].up = run[1].up = false;
    Laid a(kOneSuit, {run, {{0, 0, 5}}});
    EXPECT_EQ(a.Solve().verdict, Verdict::Winnable);
  }
}

TEST(Solver, WinsThatNeedASplitGroupOrARowOntoAnEmptyPile) {
  {  // King-only spaces: the Two and Ace must leave the Three they lie on.
    std::vector<Want> b = KingToTwo(1);
    b.resize(9);  // King to Five
    std::vector<Want> a = KingToTwo(0);
    a.resize(11);  // King to Three
    Laid l({10, 4, 12, 0, 1, 0, 0}, {a, {{2, 0, 1}, {1, 0, 0}, {0, 0, 0}}, b, {{3, 0, 1}, {1, 0, 1}, {0, 0, 1}}});
    const SolverResult r = l.Solve();
    ASSERT_EQ(r.verdict, Verdict::Winnable);
    // The first move lifts a Two with its Ace off a Three: the only other first moves
    // send an Ace home alone.
    EXPECT_EQ(std::tuple(r.solution.front().kind, r.solution.front().fromPos), std::tuple(SolverMove::Drag, 1));
  }
  {  // Six piles; the row's first card goes onto the empty pile 0 and is the Ace the set
     // under pile 1's set waits for.
    std::vector<std::vector<Want>> piles(6);
    piles[1] = KingToTwo(0);
    for (const Want& w : KingToTwo(1)) piles[1].push_back(w);
    for (int p = 2; p < 6; ++p) piles[p] = KingToTwo(p);
    std::vector<Want> stock;
    for (int p = 5; p >= 0; --p) stock.push_back({0, 0, p == 0 ? 0 : p == 1 ? 1 : p});
    Laid l({6, 4, 13, 0, 1, 0, 0}, piles, stock);
    const SolverResult r = l.Solve();
    ASSERT_EQ(r.verdict, Verdict::Winnable);
    EXPECT_EQ(r.solution.front().kind, SolverMove::Stock);
  }
}

TEST(Solver, EmptyPilesAndWrapFollowTheRules) {
  std::vector<SolverMove> moves;
  auto offered = [&](const Laid& l, SolverMove m) {
    SolverGame g(l.table, l.games, 1000);
    g.Moves(g.Start(), moves);
    return std::find(moves.begin(), moves.end(), m) != moves.end();
  };
  // King-only spaces take a King, not a Queen; with Ace-King wrap a King goes on an Ace.
  Laid kings({10, 4, 12, 0, 1, 0, 0}, {{{12, 0}}, {{11, 0}}, {}, {{0, 0}}});
  EXPECT_TRUE(offered(kings, {SolverMove::Drag, 0, 0, 0, 2}));
  EXPECT_FALSE(offered(kings, {SolverMove::Drag, 0, 1, 0, 2}));
  EXPECT_FALSE(offered(kings, {SolverMove::Drag, 0, 0, 0, 3}));
  Laid wrap({10, 4, 12, 1, 1, 0, 0}, {{{12, 0}}, {{11, 0}}, {}, {{0, 0}}});
  EXPECT_TRUE(offered(wrap, {SolverMove::Drag, 0, 0, 0, 3}));
  // With the Stock empty one empty pile stands for all of them.
  EXPECT_FALSE(offered(kings, {SolverMove::Drag, 0, 0, 0, 4}));
}

TEST(Solver, HintTellsTheNextMoveAndWhy) {
  Laid a(kOneSuit, {KingToTwo(3), {{0, 0, 3}}});
  const SolverGame g(a.table, a.games, 1000);
  EXPECT_EQ(MoveSentence(g, g.Start(), {SolverMove::Drag, 0, 1, 0, 0}, false),
            "Move the Ace of Spades from pile 2 onto the 2 of Spades on pile 1: it completes a set");
  EXPECT_EQ(MoveSentence(g, g.Start(), {SolverMove::Drag, 0, 0, 3, 2}, false),
            "Move the 10 of Spades and the 8 cards on it from pile 1 to the empty pile 3: it keeps the game winnable");
  // The window's Hint searches the table as it lies and moves nothing.
  test::TestProgram t;
  t.Deal("Spider Single Suit", 3);
  ASSERT_TRUE(CommandEnabled(*t, "Hint"));
  ExecCommand(*t, "Hint");
  EXPECT_EQ(t.window.opened.back(), "Hint");
  const TableCopy copy = CopyTable(*t);
  const HintAdvice won = AdviceFor(copy, SolveCopy(copy, {}, {}));
  ASSERT_TRUE(won.move);
  EXPECT_TRUE(won.text.starts_with("Move the ") && won.text.find(": it ") != std::string::npos) << won.text;
  const HintAdvice guess = AdviceFor(copy, SolverResult{});
  ASSERT_TRUE(guess.move);
  EXPECT_TRUE(guess.text.starts_with("No win was found in the time given. A guess: ")) << guess.text;
  SolverResult lost;
  lost.verdict = Verdict::Lost;
  const HintAdvice none = AdviceFor(copy, lost);
  EXPECT_FALSE(none.move);
  EXPECT_EQ(none.text, "This game can no longer be won from here: every position that can still be reached was searched.");
  EXPECT_EQ(t->cEngine.GetTransID(), 0);
}

TEST(Solver, PilesHashAsAMultisetOnlyWithTheStockEmpty) {
  for (bool stockEmpty : {true, false}) {
    const std::vector<Want> stock = stockEmpty ? std::vector<Want>{} : std::vector<Want>{{4, 0}};
    Laid a(kOneSuit, {{{7, 0}}, {{9, 0}, {3, 0}}}, stock), b(kOneSuit, {{{9, 0}, {3, 0}}, {{7, 0}}}, stock);
    SolverGame ga(a.table, a.games, 100), gb(b.table, b.games, 100);
    EXPECT_EQ(ga.Hash(ga.Start()) == gb.Hash(gb.Start()), stockEmpty);
  }
}

TEST(Solver, BudgetsAndStopsGiveUnknown) {
  test::TestProgram t;
  t.Deal("Spider", 3);
  const SolverGame g(t->cPlay.table(), t->cGames, 30000);
  int nodes = 0;
  SolverResult r = Solve(g, {}, {}, [&] { return ++nodes < 50; });
  EXPECT_EQ(std::tuple(r.verdict, r.limit, nodes), std::tuple(Verdict::Unknown, "stop", 50));
  std::stop_source stop;
  stop.request_stop();
  EXPECT_EQ(Solve(g, {}, stop.get_token()).limit, "stop");
  EXPECT_EQ(Solve(g, {10000, 512, 20}).limit, "positions");
  r = Solve(g, {0, 512, 0});
  EXPECT_EQ(std::tuple(r.limit, r.positions), std::tuple("time", 0));
}

// Plays the solver's moves through the pointer, as a player would.
void PlayThroughPointer(test::TestProgram& t, const SolverMove& m) {
  auto& p = t->cPlay;
  switch (m.kind) {
    case SolverMove::Stock: ClickCard(*t, p.GetTopPicID(1, 0)); break;
    case SolverMove::DoubleClick: DoubleClickCard(*t, p.GetPicID(0, m.fromPile, m.fromPos)); break;
    case SolverMove::Drag: DragCardToPile(*t, p.GetPicID(m.fromCell, m.fromPile, m.fromPos), m.toPile); break;
  }
}

SolverPosition Now(test::TestProgram& t) {
  return SolverGame(t->cPlay.table(), t->cGames, cEngine::kMaxRecords - t->cEngine.GetTransID()).Start();
}

bool Same(const SolverPosition& a, const SolverPosition& b) {
  return a.cards == b.cards && a.len == b.len && a.stock == b.stock && a.room == b.room;
}

void UndoTo(test::TestProgram& t, int transID) {
  int speed = 0;
  while (t->cEngine.GetTransID() > transID) t->cEngine.Undo(speed);
}

// In random positions of random rules, the solver offers exactly the drags, rows and
// double-clicks that the pointer makes, and each leaves the table as cPlay leaves it.
TEST(Solver, MovesAreExactlyThePointersMoves) {
  std::mt19937 random(17);
  for (int game = 0; game < 6; ++game) {
    test::TestProgram t;
    const test::Rules rules{static_cast<int16_t>(6 + random() % 5), static_cast<int16_t>(random() % 6),
                            static_cast<int16_t>(random() % 2 ? 13 : random() % 13), static_cast<int16_t>(random() % 2),
                            static_cast<int16_t>(random() % 4 != 0), static_cast<int16_t>(random() % 3),
                            static_cast<int16_t>(random() % 6)};
    test::PlayWithRules(t, rules, 1 + random() % 1000);
    std::vector<SolverMove> moves;
    for (int step = 0; step < 25; ++step) {
      const SolverGame g(t->cPlay.table(), t->cGames, cEngine::kMaxRecords - t->cEngine.GetTransID());
      g.Moves(g.Start(), moves);
      const int before = t->cEngine.GetTransID();
      const SolverPosition start = Now(t);
      for (const SolverMove& m : moves) {
        SolverPosition expected = start;
        g.Apply(expected, m);
        PlayThroughPointer(t, m);
        ASSERT_TRUE(Same(Now(t), expected)) << "game " << game << " step " << step << " kind " << m.kind;
        UndoTo(t, before);
      }
      // Every drag not offered is refused (with the Stock empty, any empty pile is the
      // one offered), and so is every double-click not offered.
      const auto& table = t->cPlay.table();
      for (int cell : {0, 3})
        for (int s = 0; s < t->cGames.Piles(cell); ++s)
          for (int q = 0; q <= table.GetTop(cell, s); ++q) {
            if (cell == 3 && q != table.GetTop(cell, s)) continue;
            for (int d = 0; d < t->cGames.Piles(0); ++d) {
              SolverMove m{SolverMove::Drag, static_cast<uint8_t>(cell), static_cast<uint8_t>(s),
                           static_cast<uint8_t>(q), static_cast<uint8_t>(d)};
              if (start.stock == 0 && table.GetTop(0, d) < 0)
                for (int e = 0; e < d; ++e)
                  if (table.GetTop(0, e) < 0) m.toPile = static_cast<uint8_t>(e);
              if (std::find(moves.begin(), moves.end(), m) != moves.end()) continue;
              const int pic = table.GetPicID(cell, s, q);
              DragCardToPile(*t, pic, d);
              EXPECT_FALSE(t->cPlay.Cell(pic) == 0 && t->cPlay.Pile(pic) == d && (cell != 0 || s != d))
                  << "game " << game << " step " << step << " " << cell << " " << s << " " << q << " to " << d;
              UndoTo(t, before);
            }
            if (cell == 0 && q == table.GetTop(0, s)) {
              const SolverMove m{SolverMove::DoubleClick, 0, static_cast<uint8_t>(s), static_cast<uint8_t>(q), 0};
              const bool listed = std::any_of(moves.begin(), moves.end(), [&](const SolverMove& o) {
                return o.kind == m.kind && o.fromPile == m.fromPile;
              });
              DoubleClickCard(*t, table.GetPicID(0, s, q));
              EXPECT_EQ(t->cEngine.GetTransID() != before, listed);
              UndoTo(t, before);
            }
          }
      ASSERT_TRUE(Same(Now(t), start));
      if (moves.empty()) break;
      PlayThroughPointer(t, moves[random() % moves.size()]);
    }
  }
}

// Is any won table reachable? Breadth first over every position, told apart card by
// card (no merged piles): a search in another order and with none of the solver's
// shortcuts. Nothing when there are more than `cap` positions. The journal's room is
// left out, so it must be more than any path of `cap` moves can use.
std::optional<bool> ReachesAWin(const SolverGame& g, size_t cap) {
  auto key = [](const SolverPosition& p) {
    std::string k(p.cards.begin(), p.cards.end());
    k.append(p.len.begin(), p.len.end());
    return k + char(p.stock);
  };
  std::set<std::string> seen{key(g.Start())};
  std::deque<SolverPosition> todo{g.Start()};
  std::vector<SolverMove> moves;
  for (; !todo.empty(); todo.pop_front()) {
    if (g.Won(todo.front())) return true;
    g.Moves(todo.front(), moves);
    for (const SolverMove& m : moves) {
      SolverPosition next = todo.front();
      g.Apply(next, m);
      if (seen.insert(key(next)).second) todo.push_back(next);
    }
    if (seen.size() > cap) return std::nullopt;
  }
  return false;
}

// One answer whatever the order of search: on small random tables of random rules the
// solver's verdict is the plain search's, so no shortcut of its own loses a win or
// proves a winnable game lost.
TEST(Solver, VerdictsAgreeWithAPlainSearchOfEveryPosition) {
  std::mt19937 random(29);
  int lost = 0, winnable = 0;
  for (int round = 0; round < 60; ++round) {
    // The King to the Eight lie in order on the first pile; the rest of the set, Seven
    // to Ace, lies anywhere on the next three piles or in the Stock. The other sets lie
    // whole on their foundations; a space takes neither a King nor any card, so their
    // Kings stay there and the tables stay small.
    const test::Rules rules{static_cast<int16_t>(6 + random() % 5), static_cast<int16_t>(random() % 2 ? 0 : 4),
                            static_cast<int16_t>(random() % 12), 0, 1, 0, 0};
    std::vector<Want> cards;
    for (int n = 0; n < 7; ++n) cards.push_back({n, 0, 0});
    std::shuffle(cards.begin(), cards.end(), random);
    std::vector<Want> stock(cards.begin(), cards.begin() + random() % 3);
    std::vector<std::vector<Want>> piles(rules.HPiles);
    for (int n = 12; n >= 7; --n) piles[0].push_back({n, 0, 0, random() % 2 == 0});
    for (size_t i = stock.size(); i < cards.size(); ++i) piles[random() % 4].push_back(cards[i]);
    for (auto& pile : piles)
      for (size_t q = 0; q + 1 < pile.size(); ++q) pile[q].up = pile[q].up && random() % 2 == 0;
    Laid a(rules, piles, stock);
    const SolverGame g(a.table, a.games, 30000);
    const std::optional<bool> plain = ReachesAWin(g, 20000);
    if (!plain) continue;
    const SolverResult r = Solve(g, {60000, 256, 0});
    ASSERT_EQ(r.verdict, *plain ? Verdict::Winnable : Verdict::Lost) << "round " << round;
    (*plain ? winnable : lost) += 1;
  }
  // Both answers were put to the test.
  EXPECT_GT(lost, 5);
  EXPECT_GT(winnable, 5);
}

// The positions Back chooses from are the table as it lay after each step, and the last
// winnable one is found by halving.
TEST(Solver, BackFindsTheLastWinnableStepByHalving) {
  test::TestProgram t;
  t.Deal("Spider", 11);
  std::mt19937 random(5);
  std::vector<SolverMove> moves;
  for (int step = 0; step < 30; ++step) {
    const SolverGame g(t->cPlay.table(), t->cGames, 1000);
    g.Moves(g.Start(), moves);
    if (moves.empty()) break;
    PlayThroughPointer(t, moves[random() % moves.size()]);
  }
  const std::vector<TableCopy> at = PositionsAtStepEnds(*t);
  ASSERT_GT(at.size(), 20u);
  const SolverGame last(at.back().table, at.back().games, at.back().room);
  EXPECT_TRUE(Same(last.Start(), Now(t)));
  EXPECT_EQ(at.back().key, static_cast<uint64_t>(t->cEngine.GetTransID()));
  for (int boundary : {-1, 0, 7, static_cast<int>(at.size()) - 2, static_cast<int>(at.size()) - 1}) {
    int asked = 0;
    const int found = LastWinnable(
        at,
        [&](const TableCopy& c) {
          ++asked;
          const int i = static_cast<int>(&c - at.data());
          return i <= boundary ? Verdict::Winnable : i == boundary + 1 ? Verdict::Unknown : Verdict::Lost;
        },
        {});
    EXPECT_EQ(found, boundary);
    EXPECT_LE(asked, 8);
  }
}

// A solution found on the plain table wins the game in the program, move by move.
TEST(Solver, WinnableDealsReplayThroughThePointer) {
  for (const char* game : {"Spider Single Suit", "Spider Two Suit"}) {
    test::TestProgram t;
    const uint64_t number = 3;
    t.Deal(game, number);
    const SolverResult r = SolveTable(t->cPlay.table(), t->cGames, cEngine::kMaxRecords, {20000, 256, 0});
    ASSERT_EQ(r.verdict, Verdict::Winnable) << game;
    for (const SolverMove& m : r.solution) PlayThroughPointer(t, m);
    EXPECT_EQ(t->cEngine.TotalGoalCards(), 104) << game;
  }
}

}  // namespace
}  // namespace qv
