#include "engine/Rules.h"

#include "engine/MoveRules.h"
#include "engine/Table.h"
#include "engine/cGames.h"

namespace qv {

namespace {
auto PileCards(const Table& t, int p) {
  return [&t, p](int q) -> const CardRec& { return t.Card(t.GetPicID(0, p, q)); };
}
}  // namespace

bool IsSequence(const Table& t, const cGames& g, int PicID, int mCards) {
  const CardRec& c = t.Card(PicID);
  return RunsInOrder(MoveRules::Of(g, t.GoalBase()), PileCards(t, c.Pile), c.Pos, c.Pos + mCards);
}

bool TableauAccepts(const Table& t, const cGames& g, int Pile, int C) {
  const CardRec* top = t.GetTop(0, Pile) < 0 ? nullptr : &t.Card(t.GetTopPicID(0, Pile));
  return TableauTakes(MoveRules::Of(g, t.GoalBase()), top, t.Card(C));
}

bool FoundationAccepts(const Table& t, const cGames& g, int f, int C) {
  const int top = t.GetTop(3, f);
  return FoundationTakes(MoveRules::Of(g, t.GoalBase()), top < 0 ? nullptr : &t.Card(t.GetTopPicID(3, f)), top,
                         t.Card(C));
}

bool HasSetOnTop(const Table& t, const cGames& g, int p) {
  return SetOnTop(MoveRules::Of(g, t.GoalBase()), PileCards(t, p), t.GetTop(0, p));
}

}  // namespace qv
