#include "session/MoveText.h"

#include <array>

#include "session/Program.h"

namespace qv {

namespace {

std::string PlaceText(int cell, int pile, int pos, int base) {
  return AreaName(cell) + " (Pile " + std::to_string(pile + base) + ", Card " + std::to_string(pos + base) + ")";
}

std::string GameLine(const Program& app) {
  return "Game Name : " + app.cGamePlay.GameName() + " - Game No.: " + app.cGamePlay.GameNo().Text();
}

}  // namespace

std::string AreaName(int cell) {
  static const std::array<const char*, 5> kNames{"Tableau", "Stock", "Waste", "Foundation", "Reserve"};
  // A record read from an edited file may name an area no game has.
  return cell >= 0 && cell < static_cast<int>(kNames.size()) ? kNames[cell] : "Area " + std::to_string(cell);
}

std::string SourceText(const cEngine& e, int id, int base) { return PlaceText(e.SCell(id), e.SPile(id), e.SPos(id), base); }

std::string DestText(const cEngine& e, int id, int base) { return PlaceText(e.DCell(id), e.DPile(id), e.DPos(id), base); }

std::string CardsText(const cEngine& e, int id) { return std::to_string(e.mCards(id) + 1); }

bool InsideStep(const cEngine& e, int id) { return e.Multi(id) == 1; }

QuickMoveRow QuickMoveRowOf(const Program& app, int position) {
  if (position == 0)
    return {"Start", "Name :" + app.cGamePlay.GameName(), "Game No.:" + app.cGamePlay.GameNo().Text(), "", false};
  const cEngine& e = app.cEngine;
  return {std::to_string(position), SourceText(e, position, 0), DestText(e, position, 0), CardsText(e, position),
          InsideStep(e, position)};
}

PositionTexts PositionTextsOf(const Program& app, int id) {
  const cEngine& e = app.cEngine;
  PositionTexts t;
  t.text1 = id == 0 ? GameLine(app) : SourceText(e, id, 0) + " -> " + DestText(e, id, 0);
  t.text2 = "Move : " + std::to_string(id);
  t.text3 = "Cards Moved : " + (id == 0 ? std::string("0") : CardsText(e, id));
  t.title = "Move: " + std::to_string(id) + " - " + t.text1;
  return t;
}

}  // namespace qv
