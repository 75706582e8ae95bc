#include <gtest/gtest.h>

#include "TestProgram.h"
#include "engine/Pointer.h"
#include "session/SavedGameFile.h"

namespace qv {
namespace {

struct Journal : ::testing::Test {
  // "Any Card" rules let a test move any top card anywhere, to make journals of any shape.
  void PlayAnyCard() { test::PlayWithRules(t, {.HOrder = 5, .MOrder = 5}); }
  // Moves the top card of `from` onto `to`, as a drag does.
  void Shuttle(int from, int to) { DragCardToPile(*t.app, t->cPlay.GetTopPicID(0, from), to); }

  test::TestProgram t;
  cEngine& e = t->cEngine;
  int speed = 0;
};

// Where each dealt card came from and went is checked by the Moves Manager's rows.
TEST_F(Journal, ADealtRowIsOneStepOfTenRecords) {
  t.Deal("Spider", 3);
  const auto dealt = test::Snapshot(*t.app);
  test::DealRows(t, 1);
  ASSERT_EQ(e.GetTransID(), 10);
  for (int id = 1; id <= 10; ++id) EXPECT_EQ(e.Multi(id), id < 10) << id;
  EXPECT_EQ(e.Record(1).tMod, 1);

  // One undo takes the whole row back: the last record at the speed asked, nine at 2.
  const long frames = t.sprites.Frames();
  speed = 5;
  EXPECT_TRUE(e.Undo(speed));
  EXPECT_EQ(speed, 2);
  EXPECT_EQ(t.sprites.Frames() - frames, 5 + 9 * 2);
  EXPECT_EQ(e.GetTransID(), 0);
  EXPECT_EQ(test::Snapshot(*t.app), dealt);
  EXPECT_FALSE(e.Undo(speed));
}

TEST_F(Journal, UndoAllRedoAllAndMoveTo) {
  PlayAnyCard();
  // A move that uncovers a card records tMod 3; its undo turns the card down again, and the
  // moved card comes back onto a closed card: four closed, then the open one.
  const int moved = t->cPlay.GetTopPicID(0, 0), under = t->cPlay.GetPicID(0, 0, 3);
  Shuttle(0, 1);
  EXPECT_EQ(e.Record(1).tMod, 3);
  EXPECT_TRUE(t->cPlay.FaceMode(under));
  e.Undo(speed);
  EXPECT_FALSE(t->cPlay.FaceMode(under));
  EXPECT_EQ(t->cPlay.GetTopPicID(0, 0), moved);
  EXPECT_EQ(t.sprites.Get(Sprites::PicCD, moved).top, t->cGames.GetCordY(0, 0, 4));
  e.Redo(speed);
  EXPECT_TRUE(t->cPlay.FaceMode(under));

  test::DealRows(t, 1);  // records 2 to 11, one step
  Shuttle(2, 3);
  // Where MoveTo lands inside the journal is walked at random in MoveWalk; a place past
  // its end is no place.
  e.MoveTo(1);
  e.MoveTo(99);
  EXPECT_EQ(e.GetTransID(), 1);

  e.UndoAll(speed);  // the tables undo all and redo all give back are checked on random play below
  EXPECT_EQ(std::tuple(e.MoveStarted(), e.UndoPossible(), e.RedoPossible()), std::tuple(true, false, true));
  // Passing the row's step turns the speed to 2 for the rest of the walk.
  speed = 0;
  e.RedoAll(speed);
  EXPECT_EQ(speed, 2);
}

// The 101st record grows the journal by a hundred and keeps the first; a new move after
// three undos drops what was undone.
TEST_F(Journal, GrowsInBlocksOfAHundredAndANewMoveDropsTheUndone) {
  PlayAnyCard();
  for (int i = 0; i < 100; ++i) Shuttle(i % 2, 1 - i % 2);
  EXPECT_EQ(e.GetTransMax(), 100);
  const TransRec first = e.Record(1);
  for (int i = 0; i < 3; ++i) e.Undo(speed);
  EXPECT_TRUE(e.RedoPossible());
  Shuttle(7, 8);
  EXPECT_EQ(std::tuple(e.GetTransID(), e.GetTransTop(), e.RedoPossible()), std::tuple(98, 98, false));
  for (int i = 0; i < 3; ++i) Shuttle(8, 7);
  EXPECT_EQ(std::tuple(e.GetTransID(), e.GetTransMax()), std::tuple(101, 200));
  EXPECT_EQ(e.Record(1), first);
}

TEST_F(Journal, NoStepCrossesTheLimitOfTheJournal) {
  PlayAnyCard();
  while (e.GetTransID() < cEngine::kMaxRecords - 5) {
    const int pic = t->cPlay.GetTopPicID(0, 0);
    t->cPlay.MoveCard(pic, 0, 1, t->cPlay.GetTop(0, 1) + 1, 0, 0, 0, true);
    t->cPlay.MoveCard(pic, 0, 0, t->cPlay.GetTop(0, 0) + 1, 0, 0, 0, true);
  }
  const int before = e.GetTransID();
  test::DealRows(t, 1);  // ten records do not fit: the row is not dealt
  EXPECT_EQ(std::tuple(e.GetTransID(), t->cPlay.GetTop(1, 0)), std::tuple(before, 59));
  while (e.GetTransID() < cEngine::kMaxRecords) Shuttle(e.GetTransID() % 2, 1 - e.GetTransID() % 2);
  const auto full = test::Snapshot(*t.app);
  Shuttle(0, 1);  // refused: the card jumps back
  EXPECT_EQ(e.GetTransID(), cEngine::kMaxRecords);
  EXPECT_EQ(test::Snapshot(*t.app), full);
  EXPECT_TRUE(e.Undo(speed));
}

// A dealt card that completes a set closes the row's step early: the cards dealt before it
// and the set are one step, and every card dealt after it is a step of its own.
TEST_F(Journal, ASetCompletedByADealtCardClosesTheRowsStep) {
  PlayAnyCard();
  auto& play = t->cPlay;
  // The pile that the next row's Ace lands on, counted from the left.
  int acePile = -1;
  for (int p = 0; p < 10 && acePile < 0; ++p)
    if (play.Num(play.GetPicID(1, 0, play.GetTop(1, 0) - p)) == 0) acePile = p;
  if (acePile < 0 || acePile == 9) GTEST_SKIP() << "the next row has no Ace before its last card";
  // Give that pile twelve cards from the others, so the Ace makes thirteen.
  for (int p = 0; play.GetTop(0, acePile) < 11; p = (p + 1) % 10)
    if (p != acePile && play.GetTop(0, p) > 0) Shuttle(p, acePile);
  const int before = e.GetTransID();
  test::DealRows(t, 1);
  EXPECT_EQ(e.TotalGoalCards(), 13);
  const int set = before + acePile + 1;  // the Ace's record; the set follows it
  ASSERT_EQ(e.GetTransID(), before + 10 + 13);
  for (int id = before + 1; id < set + 13; ++id) EXPECT_EQ(e.Multi(id), 1) << id;
  for (int id = set + 13; id <= e.GetTransID(); ++id) EXPECT_EQ(e.Multi(id), 0) << id;
  for (int i = 0; i < 9 - acePile; ++i) e.Undo(speed);
  EXPECT_EQ(e.GetTransID(), set + 13);
  e.Undo(speed);
  EXPECT_EQ(e.GetTransID(), before);
}

// Random legal play: undo all gives back the deal, redo all the end, and a saved file
// saved again after loading is the same to the byte.
TEST(JournalOfRandomPlay, UndoesRedoesAndSavesExactly) {
  for (uint64_t game : {7u, 1234u, 99999u}) {
    test::TestProgram t;
    t.Deal("Spider", game);
    const auto dealt = test::Snapshot(*t.app);
    std::mt19937 rng(static_cast<unsigned>(game));
    for (int i = 0; i < 60; ++i)
      if (rng() % 4 == 0 || !test::MakeAnyLegalMove(t)) test::DealRows(t, 1);
    const auto end = test::Snapshot(*t.app);
    auto& e = t->cEngine;
    int speed = 0;
    e.UndoAll(speed);
    EXPECT_EQ(test::Snapshot(*t.app), dealt) << game;
    e.RedoAll(speed);
    EXPECT_EQ(test::Snapshot(*t.app), end) << game;

    const std::string first = t.home.File("a.vq0"), second = t.home.File("b.vq0");
    ASSERT_TRUE(e.SavetoFile(first));
    test::TestProgram other;
    ASSERT_TRUE(other->cGamePlay.PlayFile(first, false));
    EXPECT_EQ(test::Snapshot(*other.app), end) << game;
    ASSERT_TRUE(other->cEngine.SavetoFile(second));
    EXPECT_EQ(test::ReadFile(first), test::ReadFile(second)) << game;
  }
}

}  // namespace
}  // namespace qv
