#include "engine/Rules.h"

#include "engine/Table.h"
#include "engine/cGames.h"
#include "engine/mStudio.h"

namespace qv {

bool IsSequence(const Table& t, const cGames& g, int PicID, int mCards) {
  const CardRec& c = t.Card(PicID);
  for (int q = c.Pos; q < c.Pos + mCards; ++q)
    if (!CheckOrder(t, t.GetPicID(0, c.Pile, q), t.GetPicID(0, c.Pile, q + 1), g.MultiOrder(), g.AK(0) != 0))
      return false;
  return true;
}

bool TableauAccepts(const Table& t, const cGames& g, int Pile, int C) {
  if (t.GetTop(0, Pile) < 0) return g.EmptyNum() == 13 || g.EmptyNum() == t.Card(C).Num;
  // The tableau's own order, not the group order: any card goes on one rank higher in
  // the standard games; what may then move on together is the group order's business.
  return CheckOrder(t, t.GetTopPicID(0, Pile), C, g.Order(0, 0), g.AK(0) != 0);
}

bool FoundationAccepts(const Table& t, const cGames& g, int f, int C) {
  const int top = t.GetTop(3, f);
  if (top < 0) return t.Card(C).Num == t.GoalBase();
  if (top == 12) return false;
  return CheckOrder(t, t.GetTopPicID(3, f), C, g.Order(3, f), g.AK(3) != 0);
}

bool HasSetOnTop(const Table& t, const cGames& g, int p) {
  const int T = t.GetTop(0, p);
  if (T < 12 || t.Card(t.GetTopPicID(0, p)).Num != t.GoalBase()) return false;
  for (int q = T; q > T - 12; --q)
    if (!CheckOrder(t, t.GetPicID(0, p, q - 1), t.GetPicID(0, p, q), g.MultiOrder(), g.AK(0) != 0)) return false;
  return true;
}

}  // namespace qv
