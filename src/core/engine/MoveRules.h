#pragma once

#include "engine/Table.h"

namespace qv {

class cGames;

// The rule parameters that every move decision reads, taken from the game's definition.
// The pointer (cPlay) and the solver both decide with the functions below, on card values
// alone (rank, suit, face), so the two can never disagree about what a move is.
struct MoveRules {
  int Piles = 10;        // tableau piles
  int Foundations = 8;
  int Order = 4;         // a card laid on a tableau card
  int MultiOrder = 4;    // the cards of a group and of a set
  int GoalOrder = 0;     // a card double-clicked onto a used foundation
  bool AK = false;       // a King counts one below an Ace on the tableau
  bool GoalAK = false;
  int EmptyNum = 13;     // what an empty pile takes: a rank, or 13 for any card
  bool MultiMove = true;
  int GoalDiv = 0;
  int GoalBase = 0;

  static MoveRules Of(const cGames& g, int goalBase = 0);
};

constexpr int kSetCards = 13;

// Do cards b (lying) and t (laid on it) stand in the relation asked for? iNum -1 down,
// 1 up, 0 either; ColorSuit 1 same suit, 2 other colour, 4 other suit, 5 same colour.
bool CardsRelate(const CardRec& b, const CardRec& t, int iNum, int ColorSuit, bool AK);
// Does t stand on b in the order of orderCode (always one rank down, or "Any Card")?
bool InOrder(const CardRec& b, const CardRec& t, int orderCode, bool AK);
// May card c (alone or the foot of a group) be laid on a tableau pile whose top card is
// `top` (nullptr: the pile is empty)? The pile the card lies on is never asked.
bool TableauTakes(const MoveRules& r, const CardRec* top, const CardRec& c);
// Does a foundation whose top card is `top` at position topPos (nullptr, -1: empty) take
// card c by double-click?
bool FoundationTakes(const MoveRules& r, const CardRec* top, int topPos, const CardRec& c);
// The foundation that a completed set with this Ace on top goes to.
int SetFoundation(const MoveRules& r, const CardRec& ace);
// How many cards a press on the Stock deals: a row, short when the Stock runs out.
int RowSize(const MoveRules& r, int stockCards);

// May a card that lies at fromCell/fromPile be dropped on tableau pile toPile, whose top
// card is `top`? A card let go over its own pile stays where it was.
bool MayDrop(const MoveRules& r, int fromCell, int fromPile, int toPile, const CardRec* top, const CardRec& c);

// In the templates, at(q) gives the card value at position q of one tableau pile.

// Do the cards from position `from` to `to` of a pile each stand on the one below?
template <class At>
bool RunsInOrder(const MoveRules& r, const At& at, int from, int to) {
  for (int q = from; q < to; ++q)
    if (!InOrder(at(q), at(q + 1), r.MultiOrder, r.AK)) return false;
  return true;
}

// What a press at position pos of a tableau pile whose top is `top` picks up: the number
// of cards riding on the pressed one, or -1 when nothing follows the pointer. A top card
// comes alone whatever its face; below it, a face-up card takes the cards above along
// when they form a group.
template <class At>
int PickUp(const MoveRules& r, const At& at, int top, int pos) {
  if (pos == top) return 0;
  if (!at(pos).FaceMode || !r.MultiMove || !RunsInOrder(r, at, pos, top)) return -1;
  return top - pos;
}

// Is the card under a card leaving position pos of area `cell` turned up as it goes?
template <class At>
bool TurnsUp(int cell, int pos, const At& at) {
  return cell == 0 && pos > 0 && !at(pos - 1).FaceMode;
}

// Do the 13 top cards of a pile form a completed set? Faces do not count.
template <class At>
bool SetOnTop(const MoveRules& r, const At& at, int top) {
  return top >= kSetCards - 1 && at(top).Num == r.GoalBase && RunsInOrder(r, at, top - (kSetCards - 1), top);
}

// The first foundation that takes card c by double-click, or -1. tops(f) gives the
// foundation's top card (nullptr when empty), topPos(f) its top position.
template <class Top, class TopPos>
int DoubleClickTarget(const MoveRules& r, const Top& tops, const TopPos& topPos, const CardRec& c) {
  for (int f = 0; f < r.Foundations; ++f)
    if (FoundationTakes(r, tops(f), topPos(f), c)) return f;
  return -1;
}

}  // namespace qv
