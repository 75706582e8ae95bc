#pragma once

#include <cstdint>

namespace qv {

// Areas of the table. No game of this program has a Waste or a Reserve.
enum CellId : int16_t { kTableau = 0, kStock = 1, kWaste = 2, kFoundation = 3, kReserve = 4 };
constexpr int kCellCount = 5;
constexpr int kMaxPiles = 21;  // piles one area can hold

// Every deck's card has this size in twips; the engine uses them as constants.
constexpr int kCardWidth = 1065;
constexpr int kCardHeight = 1440;

struct CardPlace {
  int16_t Cell = 0;
  int16_t Pile = 0;
  int16_t Pos = 0;
};

}  // namespace qv
