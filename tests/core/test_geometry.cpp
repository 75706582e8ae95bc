#include <gtest/gtest.h>

#include "TestProgram.h"
#include "engine/mStudio.h"

namespace qv {
namespace {

struct Geometry : ::testing::Test {
  void SetUp() override { t.Deal("Spider", 1); }
  int X(int cell, int pile, int pos) { return t->cGames.GetCordX(cell, pile, pos); }
  int Y(int cell, int pile, int pos) { return t->cGames.GetCordY(cell, pile, pos); }
  test::TestProgram t;
};

TEST_F(Geometry, PlacesOfATenPileGameOnAScreenOf19200) {
  EXPECT_EQ(X(1, 0, 0), 4357);
  EXPECT_EQ(Y(1, 0, 0), 560);
  EXPECT_EQ(X(3, 0, 0), 5955);
  EXPECT_EQ(Y(3, 0, 0), 560);
  EXPECT_EQ(X(3, 7, 0), 13760);
  // The first card of a pile was placed while the pile was empty.
  EXPECT_EQ(t.sprites.Get(Sprites::PicCD, t->cPlay.GetPicID(0, 0, 0)).left, 3825);
  EXPECT_EQ(t.sprites.Get(Sprites::PicCD, t->cPlay.GetPicID(0, 0, 0)).top, 2200);
  EXPECT_EQ(t.sprites.Get(Sprites::PicCD, t->cPlay.GetPicID(0, 9, 0)).left, 14310);
  // Pile 0 holds four closed cards: closed cards stand 60 apart, open ones 250.
  ASSERT_EQ(t->cPlay.ClosedCards(0), 4);
  EXPECT_EQ(Y(0, 0, 4), 2200 + 4 * 60);
  EXPECT_EQ(Y(0, 0, 5), 2690);
}

TEST_F(Geometry, HalfTwipsRoundToEvenAfterTheOffset) {
  t->ScreenWidth = 19201;
  EXPECT_EQ(X(0, 0, 0), 3826);
  EXPECT_EQ(X(0, 1, 0), 4990);
}

TEST_F(Geometry, TheStockCreepsUpAndLeft) {
  const std::pair<int, int> steps[] = {{0, 0}, {2, 0}, {3, 1}, {12, 1}, {13, 2}, {30, 2},
                                       {31, 3}, {56, 3}, {57, 4}, {90, 4}, {91, 5}, {103, 5}};
  for (auto [pos, k] : steps) {
    EXPECT_EQ(X(1, 0, pos), 4357 - 30 * k) << pos;
    EXPECT_EQ(Y(1, 0, pos), 560 - 30 * k) << pos;
  }
}

TEST_F(Geometry, FoundationCardsLieOnOneSpot) { EXPECT_EQ(Y(3, 2, 12), Y(3, 2, 0)); }

TEST(GeometryOfEmptyPiles, AnEmptyPileIsAimedAtAbovePositionZero) {
  test::TestProgram t;
  SetStdGame(t->cCustom, "Spider");
  SetupGame(t->cCustom, t->cGames);
  EXPECT_EQ(t->cGames.GetCordY(0, 3, 0), 2200);
  EXPECT_EQ(t->cGames.GetCordY(0, 3, -1), 1950);
}

TEST(GeometryOfEmptyPiles, EightPilesStartOnePileIn) {
  test::TestProgram t;
  test::PlayWithRules(t, {.HPiles = 8});
  EXPECT_EQ(t->cGames.GetCordX(0, 0, 0), 3825 + 1165);
  EXPECT_EQ(t->cGames.GetCordX(3, 0, 0), 5955);
  EXPECT_EQ(t->cGames.GetCordX(1, 0, 0), 4357);
}

}  // namespace
}  // namespace qv
