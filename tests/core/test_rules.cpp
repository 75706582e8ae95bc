#include <gtest/gtest.h>

#include "TestProgram.h"
#include "engine/Rules.h"
#include "engine/Table.h"
#include "engine/cCustom.h"
#include "engine/cGames.h"
#include "engine/mStudio.h"

namespace qv {
namespace {

// A card wanted on the table: rank (0 Ace .. 12 King), suit, face.
struct Want {
  int num, suit;
  bool up = true;
};

// A table of a game's definition with the wanted cards on tableau piles, bottom up, and
// every other card in the Stock.
struct Arranged {
  Arranged(const test::Rules& r, const std::vector<std::vector<Want>>& piles) {
    t->cCustom.Home(r.HPiles, r.HOrder, r.HSpace, r.HAK, r.HMulti, r.Suits, r.MOrder);
    SetupGame(t->cCustom, games);
    table.Make(games, GameNo::Number(1));
    std::vector<bool> used(104);
    for (size_t p = 0; p < piles.size(); ++p)
      for (size_t q = 0; q < piles[p].size(); ++q) {
        const Want& w = piles[p][q];
        int pic = 0;
        while (pic < 104 && (used[pic] || table.Card(pic).Num != w.num || table.Card(pic).Suit != w.suit)) ++pic;
        if (pic == 104) ADD_FAILURE() << "no card " << w.num << "/" << w.suit;
        used.at(pic) = true;
        table.UpdatePlace(pic, 0, static_cast<int>(p), static_cast<int>(q), w.up, false);
      }
    for (int pic = 0, pos = 0; pic < 104; ++pic)
      if (!used[pic]) table.UpdatePlace(pic, 1, 0, pos++, false, false);
  }
  int Top(int pile) const { return table.GetTopPicID(0, pile); }
  int At(int pile, int pos) const { return table.GetPicID(0, pile, pos); }

  test::TestProgram t;
  cGames games;
  Table table;
};

// Suits 0 and 2 are one colour, 1 and 3 the other.
TEST(Rules, CheckNumRanksAndRelations) {
  Arranged a({}, {{{7, 0}, {6, 0}, {6, 1}, {6, 2}, {8, 3}, {0, 0}, {12, 1}}});
  const Table& t = a.table;
  const int eight = a.At(0, 0), sevenSame = a.At(0, 1), sevenOther = a.At(0, 2), sevenSameColor = a.At(0, 3),
            nine = a.At(0, 4), ace = a.At(0, 5), king = a.At(0, 6);
  struct Case { int a, b, dir, order; bool wrap, fits; };
  for (const Case& c : {Case{eight, sevenSame, -1, 1, false, true}, {eight, sevenOther, -1, 1, false, false},
                        {eight, sevenOther, -1, 2, false, true}, {eight, sevenSameColor, -1, 2, false, false},
                        {eight, sevenSameColor, -1, 5, false, true}, {eight, sevenOther, -1, 4, false, true},
                        {eight, sevenSame, -1, 4, false, false}, {eight, sevenSame, -1, 99, false, true},
                        {eight, nine, -1, 3, false, false}, {eight, nine, 1, 3, false, true},
                        {eight, nine, 0, 3, false, true}, {eight, nine, 2, 3, false, false},
                        // Ace-King wrap only when asked for.
                        {ace, king, -1, 3, false, false}, {ace, king, -1, 3, true, true}, {king, ace, 1, 3, true, true}})
    EXPECT_EQ(t.CheckNum(c.a, c.b, c.dir, c.order, c.wrap), c.fits) << c.a << " " << c.b << " " << c.dir << " " << c.order;
  EXPECT_TRUE(CheckOrder(t, ace, eight, 5, false));
  EXPECT_FALSE(CheckOrder(t, eight, nine, 4, false));
}

TEST(Rules, NamesOfCodes) {
  using N = std::pair<std::string, std::string>;
  for (const auto& [got, want] : {N{GetOrderName(0), "Down Same Suit"}, N{GetOrderName(4), "Down Regardless of Suit"},
                                  N{GetOrderName(5), "Any Card"}, N{GetOrderName(6), ""}, N{GetSpaceName(12), "King"},
                                  N{GetSpaceName(13), "Any Card"}, N{GetSuitName(2), "Four"}, N{GetBoolName(1), "True"},
                                  N{GetBoolName(-1), ""}})
    EXPECT_EQ(got, want);
}

// The seven differ only in Suits and MOrder; a stored MOrder 0 groups by the tableau's order.
// Fewer piles start further in, so that they stand centred; the Stock and foundations stay.
TEST(Rules, StandardGamesAndFewerPiles) {
  test::TestProgram t;
  struct Row { const char* name; int suits, mOrder, multiOrder; };
  for (const Row& r : {Row{"Spider", 2, 0, 4}, {"Spider Single Suit", 0, 0, 4}, {"Spider Two Suit", 1, 0, 4},
                       {"Scarab", 2, 4, 4}, {"Plaza", 2, 1, 1}, {"Coral", 2, 2, 2}, {"Spider Plus", 2, 3, 3}}) {
    cCustom c(*t.app);
    ASSERT_TRUE(SetStdGame(c, r.name));
    EXPECT_EQ((std::vector<int>{c.HPiles, c.HOrder, c.HSpace, c.HAK, c.HMulti, c.Suits, c.MOrder}),
              (std::vector<int>{10, 4, 13, 0, 1, r.suits, r.mOrder})) << r.name;
    cGames g;
    SetupGame(c, g);
    EXPECT_EQ((std::vector<int>{g.MultiOrder(), g.Order(0, 0), g.EmptyNum(), g.Piles(0), g.Piles(3), g.TotalCards(),
                                g.BaseX(), g.MultiMove()}),
              (std::vector<int>{r.multiOrder, 4, 13, 10, 8, 104, 11550, true})) << r.name;
  }
  for (auto [piles, x] : {std::pair{10, 0}, {9, 582}, {8, 1165}, {7, 1748}, {6, 2330}}) {
    cCustom c(*t.app);
    c.Home(static_cast<int16_t>(piles), 4, 13, 0, 1, 2, 0);
    cGames g;
    SetupGame(c, g);
    EXPECT_EQ(std::tuple(g.Area(0).StartX, g.CardsOpen(), g.Area(1).StartX, g.Area(3).StartX), std::tuple(x, piles, 532, 2130))
        << piles;
  }
  cCustom c(*t.app);
  SetStdGame(c, "Plaza");
  EXPECT_FALSE(SetStdGame(c, "spider"));  // no standard game: the rules stay as they were
  EXPECT_EQ(std::tuple(c.GameName, c.MOrder), std::tuple("Plaza", 1));
}

TEST(Rules, GroupsFollowTheGroupOrder) {
  // Suits 0 and 2 share a colour, 1 and 3 the other.
  const std::vector<Want> mixed{{7, 0}, {6, 2}, {5, 1}};
  const std::vector<Want> alternating{{7, 0}, {6, 1}, {5, 2}};
  const std::vector<Want> sameSuit{{7, 3}, {6, 3}, {5, 3}};
  auto group = [](const test::Rules& r, const std::vector<Want>& cards) {
    Arranged a(r, {cards});
    return IsSequence(a.table, a.games, a.At(0, 0), 2);
  };
  const std::vector<Want> wrapped{{1, 0}, {0, 1}, {12, 2}};  // Two, Ace, King
  struct Case { test::Rules rules; std::vector<Want> cards; bool group; };
  for (const Case& c : {Case{{}, mixed, true}, {{.MOrder = 1}, mixed, false}, {{.MOrder = 1}, alternating, true},
                        {{.MOrder = 2}, alternating, false}, {{.MOrder = 3}, sameSuit, false},
                        {{.MOrder = 3}, alternating, true},
                        // HOrder 0 with MOrder 0: the group order falls back on same suit.
                        {{.HOrder = 0}, mixed, false}, {{.HOrder = 0}, sameSuit, true},
                        // Any Card: every pair passes.
                        {{.HOrder = 5, .MOrder = 5}, {{0, 0}, {9, 1}, {3, 2}}, true},
                        // With wrapping a group may run Two, Ace, King, Queen.
                        {{.HAK = 1}, wrapped, true}, {{}, wrapped, false}})
    EXPECT_EQ(group(c.rules, c.cards), c.group) << c.rules.HOrder << " " << c.rules.MOrder << " " << c.rules.HAK;
}

TEST(Rules, WhereACardMayBeLaid) {
  Arranged a({}, {{{7, 0}}, {}, {{6, 3}}, {{12, 1}}});
  EXPECT_TRUE(TableauAccepts(a.table, a.games, 0, a.Top(2)));   // a Seven on an Eight of another suit
  EXPECT_FALSE(TableauAccepts(a.table, a.games, 2, a.Top(0)));  // not upwards
  EXPECT_TRUE(TableauAccepts(a.table, a.games, 1, a.Top(2)));   // any card fills a space
  Arranged kingsOnly({.HSpace = 12}, {{{7, 0}}, {}, {{12, 1}}});
  EXPECT_FALSE(TableauAccepts(kingsOnly.table, kingsOnly.games, 1, kingsOnly.Top(0)));
  EXPECT_TRUE(TableauAccepts(kingsOnly.table, kingsOnly.games, 1, kingsOnly.Top(2)));
  Arranged wrap({.HAK = 1}, {{{0, 0}}, {{12, 2}}});
  EXPECT_TRUE(TableauAccepts(wrap.table, wrap.games, 0, wrap.Top(1)));
}

TEST(Rules, CompletedSetsAreFoundOnlyOnTop) {
  std::vector<Want> run;
  for (int n = 12; n >= 0; --n) run.push_back({n, n % 4, n < 3});
  auto onTop = [](const test::Rules& r, const std::vector<Want>& cards) {
    Arranged a(r, {cards});
    return HasSetOnTop(a.table, a.games, 0);
  };
  EXPECT_TRUE(onTop({}, run));  // face-down cards count too
  auto covered = run;
  covered.push_back({4, 0});
  EXPECT_FALSE(onTop({}, covered));
  EXPECT_FALSE(onTop({}, std::vector<Want>(run.begin() + 1, run.end())));
  EXPECT_FALSE(onTop({.HOrder = 0}, run));
  std::vector<Want> anyThirteen;
  for (int n = 0; n < 12; ++n) anyThirteen.push_back({(n * 5) % 13 == 0 ? 3 : (n * 5) % 13, n % 4});
  anyThirteen.push_back({0, 1});
  EXPECT_TRUE(onTop({.HOrder = 5, .MOrder = 5}, anyThirteen));
}

TEST(Rules, FoundationsTakeAnAceThenOneRankHigher) {
  Arranged a({}, {{{0, 1}}, {{1, 1}}, {{12, 0}}, {{11, 0}}});
  EXPECT_TRUE(FoundationAccepts(a.table, a.games, 0, a.Top(0)));
  EXPECT_FALSE(FoundationAccepts(a.table, a.games, 0, a.Top(1)));
  // A foundation whose top is a King (cards dragged off a set) takes the Queen below it.
  a.table.UpdatePlace(a.Top(2), 3, 0, 0, true, true);
  EXPECT_FALSE(FoundationAccepts(a.table, a.games, 0, a.Top(0)));
  EXPECT_TRUE(FoundationAccepts(a.table, a.games, 0, a.Top(3)));
}

}  // namespace
}  // namespace qv
