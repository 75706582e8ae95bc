#include <gtest/gtest.h>

#include "TestProgram.h"
#include "engine/mStudio.h"

namespace qv {
namespace {

// Spider 1 on a screen 19200 twips wide; pile 0 holds four closed cards under its open one.
TEST(Geometry, PlacesOfATenPileGame) {
  test::TestProgram t;
  t.Deal("Spider", 1);
  const cGames& g = t->cGames;
  struct Place { int cell, pile, pos, x, y; };
  for (const Place& p : {Place{1, 0, 0, 4357, 560}, {3, 0, 0, 5955, 560}, {3, 7, 0, 13760, 560},
                         {0, 0, 4, 3825, 2200 + 4 * 60}, {0, 0, 5, 3825, 2690}}) {
    EXPECT_EQ(g.GetCordX(p.cell, p.pile, p.pos), p.x) << p.cell << "/" << p.pile << "/" << p.pos;
    EXPECT_EQ(g.GetCordY(p.cell, p.pile, p.pos), p.y) << p.cell << "/" << p.pile << "/" << p.pos;
  }
  EXPECT_EQ(g.GetCordY(3, 2, 12), g.GetCordY(3, 2, 0));  // a foundation's cards lie on one spot
  // Position 0 of piles 0 and 9, where their first cards went while the piles were empty.
  const auto& first = t.sprites.Get(Sprites::PicCD, t->cPlay.GetPicID(0, 0, 0));
  EXPECT_EQ(first.left, 3825);
  EXPECT_EQ(first.top, 2200);
  EXPECT_EQ(t.sprites.Get(Sprites::PicCD, t->cPlay.GetPicID(0, 9, 0)).left, 14310);
  EXPECT_EQ(g.GetCordX(0, 9, 0), 14310);
  // The Stock creeps up and left by 30 twips a step: (position, step).
  for (auto [pos, k] : {std::pair{0, 0}, {2, 0}, {3, 1}, {12, 1}, {13, 2}, {30, 2}, {31, 3}, {56, 3}, {57, 4},
                        {90, 4}, {91, 5}, {103, 5}}) {
    EXPECT_EQ(g.GetCordX(1, 0, pos), 4357 - 30 * k) << pos;
    EXPECT_EQ(g.GetCordY(1, 0, pos), 560 - 30 * k) << pos;
  }
  // Halves round to the even neighbour once the centring offset is added.
  t->ScreenWidth = 19201;
  EXPECT_EQ(g.GetCordX(0, 0, 0), 3826);
  EXPECT_EQ(g.GetCordX(0, 1, 0), 4990);
}

TEST(Geometry, EmptyPilesAndFewerPiles) {
  test::TestProgram t;
  SetStdGame(t->cCustom, "Spider");
  SetupGame(t->cCustom, t->cGames);
  EXPECT_EQ(t->cGames.GetCordY(0, 3, 0), 2200);
  EXPECT_EQ(t->cGames.GetCordY(0, 3, -1), 1950);  // where a drop onto an empty pile aims
  // Eight piles start one pile in; the Stock and the foundations stay.
  test::PlayWithRules(t, {.HPiles = 8});
  EXPECT_EQ(t->cGames.GetCordX(0, 0, 0), 3825 + 1165);
  EXPECT_EQ(t->cGames.GetCordX(3, 0, 0), 5955);
  EXPECT_EQ(t->cGames.GetCordX(1, 0, 0), 4357);
}

}  // namespace
}  // namespace qv
