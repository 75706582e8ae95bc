#include <gtest/gtest.h>

#include <map>
#include <set>

#include "TestProgram.h"
#include "engine/DealGenerator.h"
#include "engine/Table.h"
#include "engine/cGames.h"
#include "engine/mStudio.h"

namespace qv {
namespace {

std::vector<int16_t> Deck(double n) { return ShuffleDeck(104, n); }

TEST(DealGenerator, ReseedLeavesTheSameStateWhateverCameBefore) {
  DealGenerator g;
  for (uint32_t before : {0u, 0xFFFFFFu, 0x123456u}) {
    g.SetState(before);
    g.ReseedMinus10();
    EXPECT_EQ(g.State(), 0x53E080u);
  }
}

TEST(DealGenerator, SeedBitsComeFromTheNumbersUpperHalf) {
  EXPECT_EQ(DealGenerator::SeedBits(1), 0x3FF0u);
  EXPECT_EQ(DealGenerator::SeedBits(12345), 0x5C48u);
  EXPECT_EQ(DealGenerator::SeedBits(32), DealGenerator::SeedBits(8193));
}

TEST(DealGenerator, WorkedDealsOfGameOneAndTwelveThousand) {
  const auto one = Deck(1);
  EXPECT_EQ(std::vector<int16_t>(one.begin(), one.begin() + 10),
            (std::vector<int16_t>{41, 5, 10, 49, 4, 12, 38, 31, 95, 24}));
  EXPECT_EQ(std::vector<int16_t>(one.begin() + 100, one.end()), (std::vector<int16_t>{33, 72, 53, 97}));
  EXPECT_EQ(Deck(12345)[0], 45);
}

TEST(DealGenerator, EveryDealIsAPermutation) {
  for (double n : {1.0, 2.0, 999999.0, 999999999999999.0, 12.5}) {
    const auto d = Deck(n);
    EXPECT_EQ(std::set<int16_t>(d.begin(), d.end()).size(), 104u) << n;
  }
}

TEST(DealGenerator, NumbersWithEqualSeedBitsDealAlike) {
  EXPECT_EQ(Deck(32), Deck(8193));
  EXPECT_EQ(Deck(5), Deck(GameNo::Typed("5").Value()));
  EXPECT_NE(Deck(1), Deck(2));
}

// Golden orders: a deal must never change, or saved games and players' lists break.
TEST(DealGenerator, GoldenOrdersAtTheEndsOfTheRange) {
  const auto first = Deck(1), last = Deck(999999999999999.0);
  EXPECT_EQ(std::vector<int16_t>(last.begin(), last.begin() + 8), (std::vector<int16_t>{6, 72, 76, 15, 69, 77, 5, 95}));
  EXPECT_EQ(first[50], 62);
  EXPECT_EQ(Deck(999999)[103], 52);
}

struct DealOf {
  explicit DealOf(const std::string& game, uint64_t n = 1) { t.Deal(game, n); }
  test::TestProgram t;
  const Table& table() { return t->cPlay.table(); }
};

TEST(Deal, TenPilesGetFortyFourCardsWithTheirTopsOpen) {
  DealOf d("Spider");
  const Table& t = d.table();
  for (int p = 0; p < 10; ++p) {
    EXPECT_EQ(t.GetTop(0, p), p < 4 ? 4 : 3) << p;
    for (int q = 0; q <= t.GetTop(0, p); ++q) EXPECT_EQ(t.Card(t.GetPicID(0, p, q)).FaceMode, q == t.GetTop(0, p));
  }
  EXPECT_EQ(t.GetTop(1, 0), 59);
  EXPECT_EQ(t.GetTopPicID(1, 0), 59);
  for (int f = 0; f < 8; ++f) EXPECT_EQ(t.GetTop(3, f), -1);
}

TEST(Deal, PileZeroOfGameOneHoldsTheWorkedCards) {
  DealOf d("Spider");
  const Table& t = d.table();
  std::vector<int> ids;
  for (int q = 0; q <= t.GetTop(0, 0); ++q) ids.push_back(t.Deck()[t.GetPicID(0, 0, q)]);
  EXPECT_EQ(ids, (std::vector<int>{97, 22, 92, 9, 100}));
  const CardRec& top = t.Card(t.GetTopPicID(0, 0));
  EXPECT_EQ(top.Num, 9);
  EXPECT_EQ(top.Suitpile, 7);
  // The k-th card dealt is PicID 103 - k.
  EXPECT_EQ(t.GetPicID(0, 0, 0), 103);
  EXPECT_EQ(t.GetPicID(0, 9, 0), 94);
}

TEST(Deal, SuitsFollowTheGame) {
  for (auto [game, suits] : {std::pair{"Spider Single Suit", 1}, {"Spider Two Suit", 2}, {"Plaza", 4}}) {
    DealOf d(game, 77);
    std::map<int, int> perSuit;
    std::set<int> faces;
    for (int pic = 0; pic < 104; ++pic) {
      ++perSuit[d.table().Card(pic).Suit];
      faces.insert(d.table().Card(pic).Suit * 13 + d.table().Card(pic).Num + 1);
    }
    EXPECT_EQ(static_cast<int>(perSuit.size()), suits) << game;
    for (auto [suit, count] : perSuit) EXPECT_EQ(count, 104 / suits) << game;
    EXPECT_EQ(static_cast<int>(faces.size()), suits * 13) << game;
  }
}

TEST(Deal, SpritesShowWhatTheTableHolds) {
  DealOf d("Spider");
  const auto& s = d.t.sprites;
  const Table& t = d.table();
  EXPECT_EQ(s.Count(Sprites::PicCD), 104);
  EXPECT_EQ(s.Get(Sprites::PicCD, 63).picture.Name(), "face " + std::to_string(t.Card(63).Suit * 13 + 10));
  EXPECT_EQ(s.Get(Sprites::PicCD, 103).picture.Name(), "back 7");
  EXPECT_EQ(s.Get(Sprites::PicHome, 0).picture.Name(), "marker 14");
  EXPECT_EQ(s.Get(Sprites::PicRight, 7).picture.Name(), "marker 13");
  EXPECT_EQ(s.Get(Sprites::PicStock, 0).picture.Name(), "marker 15");
  // Cards of a pile stand in the order of their positions, the top one in front.
  for (int q = 1; q <= t.GetTop(0, 4); ++q)
    EXPECT_GT(s.Get(Sprites::PicCD, t.GetPicID(0, 4, q)).z, s.Get(Sprites::PicCD, t.GetPicID(0, 4, q - 1)).z);
  EXPECT_EQ(s.Get(Sprites::PicCD, t.GetPicID(0, 0, 4)).top, 2200 + 4 * 60);
}

TEST(Deal, QuietDealBooksWhatTheAnimatedDealDoes) {
  DealOf d("Spider Two Suit", 4242);
  Table quiet;
  quiet.DealQuietly(d.t->cGames, GameNo::Number(4242));
  for (int pic = 0; pic < 104; ++pic) {
    const CardRec &a = d.table().Card(pic), &b = quiet.Card(pic);
    EXPECT_TRUE(a.Cell == b.Cell && a.Pile == b.Pile && a.Pos == b.Pos && a.FaceMode == b.FaceMode) << pic;
  }
}

TEST(Deal, RestartDealsTheSameCardsWhateverWasPlayed) {
  DealOf d("Spider", 31337);
  const auto before = d.table().Deck();
  test::DealRows(d.t, 2);
  d.t->cGamePlay.Restart();
  EXPECT_EQ(d.table().Deck(), before);
  EXPECT_EQ(d.table().GetTop(1, 0), 59);
  EXPECT_EQ(d.t->cEngine.GetTransTop(), 0);
}

TEST(Deal, FewerPilesShareTheSameFortyFourCards) {
  for (int piles : {6, 7, 8, 9}) {
    test::TestProgram t;
    test::PlayWithRules(t, {.HPiles = static_cast<int16_t>(piles)});
    const Table& table = t->cPlay.table();
    int dealt = 0;
    for (int p = 0; p < piles; ++p) {
      const int height = table.GetTop(0, p) + 1;
      EXPECT_EQ(height, 44 / piles + (p < 44 % piles ? 1 : 0)) << piles;
      dealt += height;
    }
    EXPECT_EQ(dealt, 44);
    EXPECT_EQ(table.GetTop(1, 0), 59);
  }
}

}  // namespace
}  // namespace qv
