#include <gtest/gtest.h>

#include <algorithm>
#include <map>
#include <ranges>

#include "TestProgram.h"
#include "engine/DealGenerator.h"
#include "engine/Table.h"
#include "engine/cGames.h"

namespace qv {
namespace {

std::vector<int16_t> Deck(double n) { return ShuffleDeck(104, n); }
std::vector<int16_t> Part(const std::vector<int16_t>& deck, int from, int to) {
  return {deck.begin() + from, deck.begin() + to};
}

// Worked and golden deals: a deal must never change, or saved games and players' lists break.
TEST(DealGenerator, WorkedAndGoldenDeals) {
  DealGenerator g;
  for (uint32_t before : {0u, 0xFFFFFFu, 0x123456u}) {
    g.SetState(before);
    g.ReseedMinus10();
    EXPECT_EQ(g.State(), 0x53E080u);  // whatever came before
  }
  EXPECT_EQ(std::pair(DealGenerator::SeedBits(1), DealGenerator::SeedBits(12345)), std::pair(0x3FF0u, 0x5C48u));
  const auto one = Deck(1), last = Deck(999999999999999.0);
  EXPECT_EQ(Part(one, 0, 10), (std::vector<int16_t>{41, 5, 10, 49, 4, 12, 38, 31, 95, 24}));
  EXPECT_EQ(Part(one, 100, 104), (std::vector<int16_t>{33, 72, 53, 97}));
  EXPECT_EQ(std::tuple(one[50], Deck(12345)[0], Deck(999999)[103]), std::tuple(62, 45, 52));
  EXPECT_EQ(Part(last, 0, 8), (std::vector<int16_t>{6, 72, 76, 15, 69, 77, 5, 95}));
  for (double n : {1.0, 2.0, 999999.0, 999999999999999.0, 12.5})  // each identity once
    EXPECT_TRUE(std::ranges::is_permutation(Deck(n), std::views::iota(0, 104))) << n;
  // Numbers with equal seed bits deal alike, and a typed number as the number it reads.
  EXPECT_EQ(Deck(32), Deck(8193));
  EXPECT_EQ(Deck(5), Deck(GameNo::Typed("5").Value()));
}

// Game 1 of Spider: ten piles of 44 cards with their tops open, the k-th card dealt is PicID
// 103 - k, and pile 0 holds the worked identities 97, 22, 92, 9, 100 (a Ten of Suitpile 7).
TEST(Deal, TheWorkedTableOfGameOne) {
  test::TestProgram tp;
  tp.Deal("Spider", 1);
  const Table& t = tp->cPlay.table();
  for (int p = 0; p < 10; ++p) {
    EXPECT_EQ(t.GetTop(0, p), p < 4 ? 4 : 3) << p;
    for (int q = 0; q <= t.GetTop(0, p); ++q) EXPECT_EQ(t.Card(t.GetPicID(0, p, q)).FaceMode, q == t.GetTop(0, p));
  }
  EXPECT_EQ(std::pair(t.GetTop(1, 0), t.GetTopPicID(1, 0)), std::pair(59, 59));
  for (int f = 0; f < 8; ++f) EXPECT_EQ(t.GetTop(3, f), -1);
  std::vector<int> ids;
  for (int q = 0; q <= t.GetTop(0, 0); ++q) ids.push_back(t.Deck()[t.GetPicID(0, 0, q)]);
  EXPECT_EQ(ids, (std::vector<int>{97, 22, 92, 9, 100}));
  const CardRec& ten = t.Card(t.GetTopPicID(0, 0));
  EXPECT_EQ(std::tuple(ten.Num, ten.Suitpile, t.GetPicID(0, 0, 0), t.GetPicID(0, 9, 0)), std::tuple(9, 7, 103, 94));

  // The sprites show what the table holds, a pile's cards in front of those below them.
  const auto& s = tp.sprites;
  EXPECT_EQ(s.Count(Sprites::PicCD), 104);
  EXPECT_EQ(s.Get(Sprites::PicCD, 63).picture.Name(), "face " + std::to_string(t.Card(63).Suit * 13 + 10));
  EXPECT_EQ(std::tuple(s.Get(Sprites::PicCD, 103).picture.Name(), s.Get(Sprites::PicHome, 0).picture.Name(),
                       s.Get(Sprites::PicRight, 7).picture.Name(), s.Get(Sprites::PicStock, 0).picture.Name()),
            std::tuple("back 7", "marker 14", "marker 13", "marker 15"));
  for (int q = 1; q <= t.GetTop(0, 4); ++q)
    EXPECT_GT(s.Get(Sprites::PicCD, t.GetPicID(0, 4, q)).z, s.Get(Sprites::PicCD, t.GetPicID(0, 4, q - 1)).z);
}

TEST(Deal, SuitsFollowTheGame) {
  for (auto [game, suits] : {std::pair{"Spider Single Suit", 1}, {"Spider Two Suit", 2}, {"Plaza", 4}}) {
    test::TestProgram tp;
    tp.Deal(game, 77);
    std::map<int, int> perFace;  // every face of the game's suits, each as often
    const Table& table = tp->cPlay.table();
    for (int pic = 0; pic < 104; ++pic) ++perFace[table.Card(pic).Suit * 13 + table.Card(pic).Num];
    EXPECT_EQ(static_cast<int>(perFace.size()), suits * 13) << game;
    for (auto [face, count] : perFace) EXPECT_EQ(count, 8 / suits) << game;
  }
}

// The animated deal, the quiet one (of a replay) and a restart after play book the same places.
TEST(Deal, EveryWayOfDealingBooksTheSameTable) {
  test::TestProgram tp;
  tp.Deal("Spider Two Suit", 4242);
  const auto dealt = test::Snapshot(*tp);
  Table quiet;
  quiet.DealQuietly(tp->cGames, GameNo::Number(4242));
  std::vector<int> booked;
  for (int pic = 0; pic < 104; ++pic) {
    const CardRec& c = quiet.Card(pic);
    booked.insert(booked.end(), {c.Cell, c.Pile, c.Pos, c.FaceMode ? 1 : 0});
  }
  EXPECT_EQ(booked, dealt);
  const auto deck = tp->cPlay.table().Deck();
  test::DealRows(tp, 2);
  tp->cGamePlay.Restart();
  EXPECT_EQ(tp->cPlay.table().Deck(), deck);
  EXPECT_EQ(test::Snapshot(*tp), dealt);
  EXPECT_EQ(tp->cEngine.GetTransTop(), 0);
}

TEST(Deal, FewerPilesShareTheSameFortyFourCards) {
  for (int piles : {6, 7, 8, 9}) {
    test::TestProgram t;
    test::PlayWithRules(t, {.HPiles = static_cast<int16_t>(piles)});
    for (int p = 0; p < piles; ++p)
      EXPECT_EQ(t->cPlay.GetTop(0, p) + 1, 44 / piles + (p < 44 % piles ? 1 : 0)) << piles;
    EXPECT_EQ(t->cPlay.GetTop(1, 0), 59);  // the Stock keeps the other 60
  }
}

}  // namespace
}  // namespace qv
