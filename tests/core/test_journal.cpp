#include <gtest/gtest.h>

#include "TestProgram.h"
#include "engine/Pointer.h"
#include "session/SavedGameFile.h"

namespace qv {
namespace {

// "Any Card" rules let a test move any top card anywhere, to make journals of any shape.
const test::Rules kAnyCard{.HOrder = 5, .MOrder = 5};

// Moves the top card of `from` onto `to`, as a drag does.
void Shuttle(test::TestProgram& t, int from, int to) { DragCardToPile(*t.app, t->cPlay.GetTopPicID(0, from), to); }

TEST(Journal, ADealtRowIsOneStepOfTenRecords) {
  test::TestProgram t;
  t.Deal("Spider", 3);
  const auto dealt = test::Snapshot(*t.app);
  test::DealRows(t, 1);
  auto& e = t->cEngine;
  ASSERT_EQ(e.GetTransID(), 10);
  for (int id = 1; id <= 9; ++id) EXPECT_EQ(e.Multi(id), 1);
  EXPECT_EQ(e.Multi(10), 0);
  EXPECT_EQ(e.Record(1).tMod, 1);
  EXPECT_EQ(e.SCell(1), 1);
  EXPECT_EQ(e.SPos(1), 59);
  EXPECT_EQ(e.DPos(10), 4);

  // One undo takes the whole row back: the last record at the speed asked, nine at 2.
  const long frames = t.sprites.Frames();
  int speed = 5;
  EXPECT_TRUE(e.Undo(speed));
  EXPECT_EQ(speed, 2);
  EXPECT_EQ(t.sprites.Frames() - frames, 5 + 9 * 2);
  EXPECT_EQ(e.GetTransID(), 0);
  EXPECT_EQ(test::Snapshot(*t.app), dealt);
  EXPECT_FALSE(e.Undo(speed));
}

TEST(Journal, UndoAllRedoAllAndMoveTo) {
  test::TestProgram t;
  test::PlayWithRules(t, kAnyCard);
  auto& e = t->cEngine;
  int speed = 0;
  // A move that uncovers a card records tMod 3; its undo turns the card down again, and the
  // moved card comes back onto a closed card: four closed, then the open one.
  const int moved = t->cPlay.GetTopPicID(0, 0), under = t->cPlay.GetPicID(0, 0, 3);
  Shuttle(t, 0, 1);
  EXPECT_EQ(e.Record(1).tMod, 3);
  EXPECT_TRUE(t->cPlay.FaceMode(under));
  e.Undo(speed);
  EXPECT_FALSE(t->cPlay.FaceMode(under));
  EXPECT_EQ(t->cPlay.GetTopPicID(0, 0), moved);
  EXPECT_EQ(t.sprites.Get(Sprites::PicCD, moved).top, t->cGames.GetCordY(0, 0, 4));
  e.Redo(speed);
  EXPECT_TRUE(t->cPlay.FaceMode(under));

  test::DealRows(t, 1);  // records 2 to 11, one step
  Shuttle(t, 2, 3);
  const auto end = test::Snapshot(*t.app);
  e.MoveTo(e.GetTransID());
  EXPECT_EQ(test::Snapshot(*t.app), end);
  // A place inside the row: walking by whole steps, back lands at the row's start and
  // forward at its end.
  e.MoveTo(5);
  EXPECT_EQ(e.GetTransID(), 1);
  e.MoveTo(5);
  EXPECT_EQ(e.GetTransID(), 11);
  e.MoveTo(1);
  e.MoveTo(99);
  EXPECT_EQ(e.GetTransID(), 1);

  e.UndoAll(speed);  // the table it gives back is checked on random play below
  EXPECT_TRUE(e.MoveStarted());
  EXPECT_FALSE(e.UndoPossible());
  EXPECT_TRUE(e.RedoPossible());
  // Passing the row's step turns the speed to 2 for the rest of the walk.
  speed = 0;
  e.RedoAll(speed);
  EXPECT_EQ(speed, 2);
  EXPECT_EQ(test::Snapshot(*t.app), end);
}

// The 101st record grows the journal by a hundred and keeps the first; a new move after
// three undos drops what was undone.
TEST(Journal, GrowsInBlocksOfAHundredAndANewMoveDropsTheUndone) {
  test::TestProgram t;
  test::PlayWithRules(t, kAnyCard);
  auto& e = t->cEngine;
  for (int i = 0; i < 100; ++i) Shuttle(t, i % 2, 1 - i % 2);
  EXPECT_EQ(e.GetTransMax(), 100);
  const TransRec first = e.Record(1);
  int speed = 0;
  for (int i = 0; i < 3; ++i) e.Undo(speed);
  EXPECT_TRUE(e.RedoPossible());
  Shuttle(t, 7, 8);
  EXPECT_EQ(e.GetTransID(), 98);
  EXPECT_EQ(e.GetTransTop(), 98);
  EXPECT_FALSE(e.RedoPossible());
  for (int i = 0; i < 3; ++i) Shuttle(t, 8, 7);
  EXPECT_EQ(e.GetTransID(), 101);
  EXPECT_EQ(e.GetTransMax(), 200);
  EXPECT_EQ(e.Record(1), first);
}

TEST(Journal, NoStepCrossesTheLimitOfTheJournal) {
  test::TestProgram t;
  test::PlayWithRules(t, kAnyCard);
  auto& e = t->cEngine;
  while (e.GetTransID() < cEngine::kMaxRecords - 5) {
    const int pic = t->cPlay.GetTopPicID(0, 0);
    t->cPlay.MoveCard(pic, 0, 1, t->cPlay.GetTop(0, 1) + 1, 0, 0, 0, true);
    t->cPlay.MoveCard(pic, 0, 0, t->cPlay.GetTop(0, 0) + 1, 0, 0, 0, true);
  }
  const int before = e.GetTransID();
  test::DealRows(t, 1);  // ten records do not fit: the row is not dealt
  EXPECT_EQ(e.GetTransID(), before);
  EXPECT_EQ(t->cPlay.GetTop(1, 0), 59);
  while (e.GetTransID() < cEngine::kMaxRecords) Shuttle(t, e.GetTransID() % 2, 1 - e.GetTransID() % 2);
  const auto full = test::Snapshot(*t.app);
  Shuttle(t, 0, 1);  // refused: the card jumps back
  EXPECT_EQ(e.GetTransID(), cEngine::kMaxRecords);
  EXPECT_EQ(test::Snapshot(*t.app), full);
  int speed = 0;
  EXPECT_TRUE(e.Undo(speed));
}

// A dealt card that completes a set closes the row's step early: the cards dealt before it
// and the set are one step, and every card dealt after it is a step of its own.
TEST(Journal, ASetCompletedByADealtCardClosesTheRowsStep) {
  test::TestProgram t;
  test::PlayWithRules(t, kAnyCard);
  auto& play = t->cPlay;
  // The pile that the next row's Ace lands on, counted from the left.
  int acePile = -1;
  for (int p = 0; p < 10 && acePile < 0; ++p)
    if (play.Num(play.GetPicID(1, 0, play.GetTop(1, 0) - p)) == 0) acePile = p;
  if (acePile < 0 || acePile == 9) GTEST_SKIP() << "the next row has no Ace before its last card";
  // Give that pile twelve cards from the others, so the Ace makes thirteen.
  for (int p = 0; play.GetTop(0, acePile) < 11; p = (p + 1) % 10)
    if (p != acePile && play.GetTop(0, p) > 0) Shuttle(t, p, acePile);
  auto& e = t->cEngine;
  const int before = e.GetTransID();
  test::DealRows(t, 1);
  EXPECT_EQ(e.TotalGoalCards(), 13);
  const int set = before + acePile + 1;  // the Ace's record; the set follows it
  ASSERT_EQ(e.GetTransID(), before + 10 + 13);
  for (int id = before + 1; id < set + 13; ++id) EXPECT_EQ(e.Multi(id), 1) << id;
  for (int id = set + 13; id <= e.GetTransID(); ++id) EXPECT_EQ(e.Multi(id), 0) << id;
  int speed = 0;
  for (int i = 0; i < 9 - acePile; ++i) e.Undo(speed);
  EXPECT_EQ(e.GetTransID(), set + 13);
  e.Undo(speed);
  EXPECT_EQ(e.GetTransID(), before);
}

// Random legal play: undo all gives back the deal, redo all the end, and a saved file
// saved again after loading is the same to the byte.
TEST(Journal, RandomPlayUndoesRedoesAndSavesExactly) {
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
