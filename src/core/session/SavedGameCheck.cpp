#include "session/SavedGameCheck.h"

#include "engine/Table.h"
#include "engine/cCustom.h"
#include "engine/cGames.h"
#include "engine/mStudio.h"
#include "session/Program.h"
#include "session/SavedGameFile.h"

namespace qv {

namespace {

constexpr int kHeaderLines = 18;

bool In(int v, int lo, int hi) { return v >= lo && v <= hi; }

// The seven fields that decide a table, for a game whose name the program does not know.
bool Dealable(const cCustom& c) {
  return In(c.HPiles, 6, 10) && In(c.HOrder, 0, 5) && In(c.MOrder, 0, 5) && In(c.HSpace, 0, 13) &&
         In(c.HAK, 0, 1) && In(c.HMulti, 0, 1) && In(c.Suits, 0, 2);
}

// Why record r cannot be obeyed on table t, or empty.
std::string ShapeError(const Table& t, const cGames& g, const TransRec& r) {
  if (!In(r.PicID, 0, t.TotalCards() - 1)) return "names a card the deal does not have";
  const CardRec& c = t.Card(r.PicID);
  if (c.Cell != r.SCell || c.Pile != r.SPile || c.Pos != r.SPos) return "moves a card from where it does not lie";
  if (r.mCards < 0 || r.SPos + r.mCards != t.GetTop(r.SCell, r.SPile)) return "does not move the top of a pile";
  const bool knownCell = r.DCell == kTableau || r.DCell == kStock || r.DCell == kFoundation;
  if (!knownCell || !In(r.DPile, 0, g.Piles(r.DCell) - 1)) return "moves to a pile the table does not have";
  if (r.DCell == r.SCell && r.DPile == r.SPile) return "moves a card onto its own pile";
  if (r.DPos != t.GetTop(r.DCell, r.DPile) + 1) return "does not put the card on top of its new pile";
  if (!In(r.tMod, 0, 3) || (r.tMod == 3 && !(r.SCell == kTableau && r.SPos >= 1)))
    return "turns a card that is not there";
  if (!In(r.Multi, 0, 1)) return "holds a step mark that is neither 0 nor 1";
  return {};
}

// Obeys a record as redo does: the group moves face up, then the turns it recorded.
void Apply(Table& t, const TransRec& r) {
  t.UpdatePlace(r.PicID, r.DCell, r.DPile, r.DPos, true, true);
  for (int k = 1; k <= r.mCards; ++k)
    t.UpdatePlace(t.GetPicID(r.SCell, r.SPile, r.SPos + k), r.DCell, r.DPile, r.DPos + k, true, true);
  if (r.tMod == 3) t.SetFace(t.GetPicID(r.SCell, r.SPile, r.SPos - 1), true);
  if (r.tMod == 1) t.SetFace(r.PicID, true);
  if (r.tMod == 2) t.SetFace(r.PicID, false);
}

}  // namespace

std::string CheckSavedGame(const Program& app, const SavedGame& game) {
  // The rules the game would be dealt with, worked out on copies as StartGame would.
  cCustom rules = app.cCustom;
  rules.LoadGameFile(game.header);
  if (!rules.Init(game.header.GameName) && !Dealable(rules))
    return "its game \"" + game.header.GameName + "\" is not known and its rule fields do not describe a table";
  cGames games;
  SetupGame(rules, games);
  Table table;
  table.DealQuietly(games, game.header.GameNo);
  for (size_t i = 0; i < game.records.size(); ++i) {
    const TransRec& r = game.records[i];
    if (auto why = ShapeError(table, games, r); !why.empty())
      return "the move on line " + std::to_string(kHeaderLines + 1 + i) + " " + why;
    Apply(table, r);
  }
  return {};
}

}  // namespace qv
