#include <gtest/gtest.h>

#include "TestProgram.h"
#include "engine/Pointer.h"
#include "engine/Rules.h"

namespace qv {
namespace {

const test::Rules kAnyCard{.HOrder = 5, .MOrder = 5};

struct Pointer : ::testing::Test {
  const RecordingSprites::Sprite& Sprite(int pic) { return t.sprites.Get(Sprites::PicCD, pic); }
  int Top(int pile) { return t->cPlay.GetTopPicID(0, pile); }
  test::TestProgram t;
};

// A press and release in place, a face-down card and a drop the pile refuses: the card
// jumps back, or nothing starts at all, and nothing is journalled.
TEST_F(Pointer, PressesThatMoveNothing) {
  t.Deal("Spider", 1);
  const int card = Top(3);
  const double left = Sprite(card).left, top = Sprite(card).top;
  long moves = t.sprites.Moves();
  ClickCard(*t.app, card);
  EXPECT_EQ(std::pair(Sprite(card).left, Sprite(card).top), std::pair(left, top));
  EXPECT_GT(t.sprites.Moves(), moves);  // it jumped back
  EXPECT_FALSE(t->drag.Dragging);

  const int closed = t->cPlay.GetPicID(0, 0, 1);
  PointerPressed(*t.app, closed, 500, 30);
  EXPECT_FALSE(t->drag.Dragging);
  moves = t.sprites.Moves();
  PointerMoved(*t.app, closed, 3000, 3000);
  PointerReleased(*t.app, closed);
  EXPECT_EQ(t.sprites.Moves(), moves);

  int refused = 1;
  while (refused < 10 && TableauAccepts(t->cPlay.table(), t->cGames, 0, Top(refused))) ++refused;
  ASSERT_LT(refused, 10) << "every top card fits on pile 0";
  const int other = Top(refused);
  const double otherLeft = Sprite(other).left;
  DragCardToPile(*t.app, other, 0);
  EXPECT_EQ(std::tuple(Sprite(other).left, t->cPlay.Pile(other), t->cEngine.GetTransID()), std::tuple(otherLeft, refused, 0));
}

TEST_F(Pointer, AGroupMovesAsOneRecordAndLandsInOrder) {
  test::PlayWithRules(t, kAnyCard);
  DragCardToPile(*t.app, Top(0), 1);
  DragCardToPile(*t.app, Top(2), 1);  // pile 1 now ends in three open cards
  const int foot = t->cPlay.GetPicID(0, 1, t->cPlay.GetTop(0, 1) - 2);
  PointerPressed(*t.app, foot, 500, 30);
  ASSERT_TRUE(t->drag.Dragging);
  const auto& sel = t->cPlay.Sel();
  EXPECT_EQ(std::tuple(t->drag.DragCount, Sprite(foot).height, Sprite(sel[1]).parent, Sprite(sel[2]).top),
            std::tuple(2, 1440 + 2 * 250, foot, 500));
  PointerReleased(*t.app, foot);  // back where it was: the group comes apart again
  EXPECT_EQ(std::tuple(Sprite(sel[2]).parent, Sprite(sel[2]).top), std::tuple(-1, Sprite(foot).top + 500));

  const int toTop = t->cPlay.GetTop(0, 5);
  DragCardToPile(*t.app, foot, 5);
  const TransRec& r = t->cEngine.Record(t->cEngine.GetTransID());
  EXPECT_EQ(std::tuple(r.mCards, r.DPos, t->cPlay.GetTop(0, 5)), std::tuple(2, toTop + 1, toTop + 3));
  for (int q = toTop + 1; q <= toTop + 3; ++q) {
    const int pic = t->cPlay.GetPicID(0, 5, q);
    EXPECT_EQ(std::tuple(Sprite(pic).parent, Sprite(pic).top), std::tuple(-1, t->cGames.GetCordY(0, 5, q))) << q;
    if (q > toTop + 1) EXPECT_GT(Sprite(pic).z, Sprite(t->cPlay.GetPicID(0, 5, q - 1)).z);
  }
  EXPECT_EQ(Sprite(foot).height, 1440);
}

TEST_F(Pointer, ThePileUnderTheCentreWinsThenTheFirstOverlap) {
  test::PlayWithRules(t, kAnyCard);
  const int card = Top(0);
  // Between piles 4 and 5, a little nearer 5: the centre misses both, the overlap takes 4.
  const double x = (t->cGames.GetCordX(0, 4, 0) + t->cGames.GetCordX(0, 5, 0)) / 2.0 + 40;
  DragCardTo(*t.app, card, x, t->cGames.GetCordY(0, 4, t->cPlay.GetTop(0, 4)));
  EXPECT_EQ(t->cPlay.Pile(card), 4);
  // Over pile 6's centre: 6 wins though 5 and 7 are touched... nothing else is closer.
  const int next = Top(1);
  DragCardTo(*t.app, next, t->cGames.GetCordX(0, 6, 0) + 200, t->cGames.GetCordY(0, 6, t->cPlay.GetTop(0, 6)));
  EXPECT_EQ(t->cPlay.Pile(next), 6);
}

// A press ends a pause and acts; with no game running it starts nothing; on the Stock it
// deals a row and starts no drag; clearing the table ends a drag under way.
TEST_F(Pointer, WhatAPressDoesDependsOnTheGame) {
  t.Deal("Spider", 1);
  t->cGamePlay.PauseGame(true);
  t.window.EnableTimer(Timer::Game, false);
  ClickCard(*t.app, Top(2));
  EXPECT_EQ(std::tuple(t->cGamePlay.PauseStatus(), t.window.TimerEnabled(Timer::Game)), std::tuple(false, true));

  const int stockTop = t->cPlay.GetTopPicID(1, 0);
  PointerPressed(*t.app, stockTop, 500, 30);
  EXPECT_EQ(std::tuple(t->drag.Dragging, t->cPlay.GetTop(1, 0), t->cPlay.Cell(stockTop), t->cPlay.FaceMode(stockTop)),
            std::tuple(false, 49, 0, true));

  PointerPressed(*t.app, Top(0), 500, 30);
  ASSERT_TRUE(t->drag.Dragging);
  t->cGamePlay.ClearArea();
  EXPECT_EQ(std::tuple(t->drag.Dragging, t.sprites.Count(Sprites::PicCD), Sprite(0).visible, Sprite(0).height),
            std::tuple(false, 1, false, 1440));

  t.Deal("Spider", 1);
  t->cGamePlay.Game_Running(false);
  PointerPressed(*t.app, Top(0), 500, 30);
  EXPECT_FALSE(t->drag.Dragging);
}

TEST_F(Pointer, EmptyPilesAreFoundAboveTheirMarker) {
  test::PlayWithRules(t, kAnyCard);
  while (t->cPlay.GetTop(0, 9) >= 0) DragCardToPile(*t.app, Top(9), 8);
  ASSERT_EQ(t->cPlay.GetTop(0, 9), -1);
  const int card = Top(0), markerTop = t->cGames.GetCordY(0, 9, 0);
  // The card's centre in the marker's lowest 250 twips misses the first pass and is
  // found by the overlap of the second.
  DragCardTo(*t.app, card, t->cGames.GetCordX(0, 9, 0), markerTop + 1440 - 250 - 720 + 100);
  EXPECT_EQ(std::tuple(t->cPlay.Pile(card), t->cPlay.Pos(card)), std::tuple(9, 0));
  EXPECT_EQ(t.sprites.Get(Sprites::PicHome, 9).picture.Name(), "marker 14");
}

TEST_F(Pointer, OnlyKingsFillASpaceWhenTheGameSaysSo) {
  test::PlayWithRules(t, {.HOrder = 5, .HSpace = 12, .MOrder = 5});
  while (t->cPlay.GetTop(0, 9) >= 0) DragCardToPile(*t.app, Top(9), 8);
  EXPECT_EQ(t.sprites.Get(Sprites::PicHome, 9).picture.Name(), "marker 12");
  for (int p = 0; p < 9; ++p) {
    const int card = Top(p);
    DragCardToPile(*t.app, card, 9);
    EXPECT_EQ(t->cPlay.Pile(card) == 9, t->cPlay.Num(card) == 12) << p;
    if (t->cPlay.Pile(card) == 9) break;
  }
}

TEST_F(Pointer, ADoubleClickSendsAnAceToTheFirstEmptyFoundation) {
  // Look for a deal with an open Ace.
  for (uint64_t n = 1; n < 500; ++n) {
    t.Deal("Spider", n);
    for (int p = 0; p < 10; ++p) {
      const int card = Top(p);
      if (t->cPlay.Num(card) != 0) continue;
      const int under = t->cPlay.GetPicID(0, p, t->cPlay.GetTop(0, p) - 1);
      DoubleClickCard(*t.app, card);
      EXPECT_EQ(std::tuple(t->cPlay.Cell(card), t->cPlay.Pile(card), t->cPlay.FaceMode(under), t->cEngine.Record(1).tMod),
                std::tuple(3, 0, true, 3));
      // A card under others, or one no foundation takes, stays.
      DoubleClickCard(*t.app, t->cPlay.GetPicID(0, (p + 1) % 10, 0));
      EXPECT_EQ(t->cEngine.GetTransID(), 1);
      // A card on a foundation cannot be double-clicked anywhere.
      DoubleClickCard(*t.app, card);
      EXPECT_EQ(t->cPlay.Cell(card), 3);
      return;
    }
  }
  FAIL() << "no deal with an open Ace";
}

}  // namespace
}  // namespace qv
