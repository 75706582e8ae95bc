#include "engine/mStudio.h"

#include <array>

#include "engine/MoveRules.h"
#include "engine/Numeric.h"
#include "engine/Table.h"
#include "engine/cCustom.h"
#include "engine/cGames.h"

namespace qv {

const char* const kStandardGameNames[kStandardGames] = {
    "Spider", "Spider Single Suit", "Spider Two Suit", "Scarab", "Plaza", "Coral", "Spider Plus"};

namespace {

struct StdRow {
  int16_t HPiles, HOrder, HSpace, HAK, HMulti, Suits, MOrder;
};
constexpr std::array<StdRow, kStandardGames> kStdRows{{
    {10, 4, 13, 0, 1, 2, 0},
    {10, 4, 13, 0, 1, 0, 0},
    {10, 4, 13, 0, 1, 1, 0},
    {10, 4, 13, 0, 1, 2, 4},
    {10, 4, 13, 0, 1, 2, 1},
    {10, 4, 13, 0, 1, 2, 2},
    {10, 4, 13, 0, 1, 2, 3},
}};

std::string NameOf(int code, std::initializer_list<const char*> names) {
  if (code < 0 || code >= static_cast<int>(names.size())) return {};
  return names.begin()[code];
}

}  // namespace

bool SetStdGame(cCustom& custom, const std::string& name) {
  for (int i = 0; i < kStandardGames; ++i) {
    if (name != kStandardGameNames[i]) continue;
    const StdRow& r = kStdRows[i];
    custom.Home(r.HPiles, r.HOrder, r.HSpace, r.HAK, r.HMulti, r.Suits, r.MOrder);
    custom.GameName = name;
    return true;
  }
  return false;
}

void SetupGame(const cCustom& c, cGames& games) {
  games.Res(0, 0, 0, 0, 0, 0, 20, 0, 0, -1);
  games.Waste(0, 0, 0, 0, 0, 30);
  // Fewer than ten piles are centred in the width of ten.
  const auto startX = static_cast<int16_t>(RoundHalfEven((10 - c.HPiles) * 1165 / 2.0));
  games.Home(c.HPiles, c.HOrder, 44, c.HAK, c.HSpace, 1, startX, 1640, 1165, 250, 20, 0, 0, 0, c.MOrder, c.Suits,
             c.HPiles);
  games.Goal(8, c.MOrder, 0, 13, 0, 2130, 0, 1115, 0, 20, 0, 0);
  games.Stock(1, 2, static_cast<int16_t>(RoundHalfEven(1065 / 2.0)), 0, 30, 1, 0);
  games.Ext(11550, 200, 104, -1, "Spider", -1, 0);
}

std::string GetOrderName(int code) {
  return NameOf(code, {"Down Same Suit", "Down Alternate Color", "Down Same Color", "Down Other Suits",
                       "Down Regardless of Suit", "Any Card"});
}

std::string GetSpaceName(int code) {
  return NameOf(code, {"Ace", "Two", "Three", "Four", "Five", "Six", "Seven", "Eight", "Nine", "Ten", "Jack",
                       "Queen", "King", "Any Card"});
}

std::string GetSuitName(int code) { return NameOf(code, {"One", "Two", "Four"}); }
std::string GetBoolName(int code) { return NameOf(code, {"False", "True"}); }

bool CheckOrder(const Table& table, int pB, int pT, int orderCode, bool AK) {
  return InOrder(table.Card(pB), table.Card(pT), orderCode, AK);
}

}  // namespace qv
