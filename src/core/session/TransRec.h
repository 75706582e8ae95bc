#pragma once

#include <cstdint>

namespace qv {

// One card move of the journal; its values are the numbers of a saved game's move line.
struct TransRec {
  int16_t PicID = 0;   // the card moved, the lowest of a moved group
  int16_t SCell = 0;   // where it came from
  int16_t SPile = 0;
  int16_t SPos = 0;
  int16_t DCell = 0;   // where it went
  int16_t DPile = 0;
  int16_t DPos = 0;
  int16_t mCards = 0;  // further cards that rode on it
  int32_t tMod = 0;    // 0 plain, 1 turned up, 2 turned down, 3 uncovered the card under it
  int16_t Multi = 0;   // 1 when the next record belongs to the same step

  bool operator==(const TransRec&) const = default;
};

}  // namespace qv
