#include "engine/MoveRules.h"

#include <algorithm>

#include "engine/cGames.h"

namespace qv {

MoveRules MoveRules::Of(const cGames& g, int goalBase) {
  MoveRules r;
  r.Piles = g.Piles(0);
  r.Foundations = g.Piles(3);
  r.Order = g.Order(0, 0);
  r.MultiOrder = g.MultiOrder();
  r.GoalOrder = g.Order(3, 0);
  r.AK = g.AK(0) != 0;
  r.GoalAK = g.AK(3) != 0;
  r.EmptyNum = g.EmptyNum();
  r.MultiMove = g.MultiMove();
  r.GoalDiv = g.GoalDiv();
  r.GoalBase = goalBase;
  return r;
}

bool CardsRelate(const CardRec& b, const CardRec& t, int iNum, int ColorSuit, bool AK) {
  const int B = b.Num, T = t.Num;
  const bool down = T == B - 1 || (AK && B == 0 && T == 12);
  const bool up = T == B + 1 || (AK && B == 12 && T == 0);
  bool rank = false;
  switch (iNum) {
    case -1: rank = down; break;
    case 1: rank = up; break;
    case 0: rank = down || up; break;
    default: return false;
  }
  if (!rank) return false;
  switch (ColorSuit) {
    case 1: return b.Suit == t.Suit;
    case 2: return b.Suit % 2 != t.Suit % 2;
    case 4: return b.Suit != t.Suit;
    case 5: return b.Suit % 2 == t.Suit % 2;
    default: return true;
  }
}

bool InOrder(const CardRec& b, const CardRec& t, int orderCode, bool AK) {
  constexpr int kColorSuit[] = {1, 2, 5, 4, 3};
  if (orderCode == 5) return true;
  const int colorSuit = orderCode >= 0 && orderCode < 5 ? kColorSuit[orderCode] : 3;
  return CardsRelate(b, t, -1, colorSuit, AK);
}

bool TableauTakes(const MoveRules& r, const CardRec* top, const CardRec& c) {
  if (top == nullptr) return r.EmptyNum == 13 || r.EmptyNum == c.Num;
  // The tableau's own order, not the group order: any card goes on one rank higher in
  // the standard games; what may then move on together is the group order's business.
  return InOrder(*top, c, r.Order, r.AK);
}

bool MayDrop(const MoveRules& r, int fromCell, int fromPile, int toPile, const CardRec* top, const CardRec& c) {
  if (top != nullptr && fromCell == 0 && toPile == fromPile) return false;
  return TableauTakes(r, top, c);
}

bool FoundationTakes(const MoveRules& r, const CardRec* top, int topPos, const CardRec& c) {
  if (top == nullptr) return c.Num == r.GoalBase;
  if (topPos == kSetCards - 1) return false;
  return InOrder(*top, c, r.GoalOrder, r.GoalAK);
}

int SetFoundation(const MoveRules& r, const CardRec& ace) {
  return r.GoalDiv != 0 ? ace.Suitpile % r.GoalDiv : ace.Suitpile;
}

int RowSize(const MoveRules& r, int stockCards) { return std::min(r.Piles, stockCards); }

}  // namespace qv
