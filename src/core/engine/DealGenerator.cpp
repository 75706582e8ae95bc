#include "engine/DealGenerator.h"

#include <bit>
#include <numeric>

#include "engine/Numeric.h"

namespace qv {

namespace {
constexpr uint32_t kMask24 = 0xFFFFFF;
}

double DealGenerator::NextRnd() {
  state_ = static_cast<uint32_t>((uint64_t{state_} * 0x43FD43FDu + 0xC39EC3u) & kMask24);
  return static_cast<double>(state_) / 16777216.0;
}

uint32_t DealGenerator::SeedBits(double n) {
  const uint32_t h = static_cast<uint32_t>(std::bit_cast<uint64_t>(n) >> 32);
  return (h ^ (h >> 16)) & 0xFFFF;
}

void DealGenerator::MixSeed(double n) { state_ = (state_ & 0xFF) | (SeedBits(n) << 8); }

void DealGenerator::ReseedMinus10() {
  const uint32_t pattern = std::bit_cast<uint32_t>(-10.0f);
  state_ = (pattern + (pattern >> 24)) & kMask24;
  NextRnd();
}

std::vector<int16_t> ShuffleDeck(int totalCards, double gameNo) {
  std::vector<int16_t> temp(totalCards);
  std::iota(temp.begin(), temp.end(), int16_t{0});
  std::vector<int16_t> deck(totalCards);
  DealGenerator rnd;
  rnd.ReseedMinus10();
  int n = totalCards;
  for (int i = 0; i < totalCards; ++i) {
    // Mixed in every round: only the low 8 bits of the state carry over between rounds.
    rnd.MixSeed(gameNo);
    --n;
    const double r = rnd.NextRnd();
    const auto k = static_cast<int>(RoundHalfEven(r * n));
    deck[i] = temp[k];
    temp[k] = temp[n];
  }
  return deck;
}

}  // namespace qv
