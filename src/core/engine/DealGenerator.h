#pragma once

#include <cstdint>
#include <vector>

namespace qv {

// The 24-bit generator behind every deal. Its exact behaviour is part of the program:
// game numbers on players' lists and in saved files must keep their deals.
class DealGenerator {
 public:
  uint32_t State() const { return state_; }
  void SetState(uint32_t s) { state_ = s & 0xFFFFFF; }

  double NextRnd();           // a 24-bit fraction in [0, 1)
  void MixSeed(double n);     // bits 8 to 23 of the state from the number's upper bits
  void ReseedMinus10();       // wipes all earlier state: 0x53E080 afterwards

  static uint32_t SeedBits(double n);  // the 16 bits t that MixSeed brings in

 private:
  uint32_t state_ = 0;
};

// Deck(i) for i from 0 to totalCards - 1: the identity of the card with PicID i.
std::vector<int16_t> ShuffleDeck(int totalCards, double gameNo);

}  // namespace qv
