#pragma once

#include <cmath>
#include <cstdint>
#include <limits>

namespace qv {

// Every floating-point value that becomes an integer is rounded to the nearest,
// halves to the even neighbour. std::nearbyint does that in the default rounding
// mode; std::round would send halves away from zero and change deals and scores.
inline long long RoundHalfEven(double v) { return static_cast<long long>(std::nearbyint(v)); }

// Values kept in 16-bit fields saturate instead of wrapping (a score after days of play).
inline int16_t Saturate16(long long v) {
  if (v > std::numeric_limits<int16_t>::max()) return std::numeric_limits<int16_t>::max();
  if (v < std::numeric_limits<int16_t>::min()) return std::numeric_limits<int16_t>::min();
  return static_cast<int16_t>(v);
}

inline int32_t Saturate32(long long v) {
  if (v > std::numeric_limits<int32_t>::max()) return std::numeric_limits<int32_t>::max();
  if (v < std::numeric_limits<int32_t>::min()) return std::numeric_limits<int32_t>::min();
  return static_cast<int32_t>(v);
}

}  // namespace qv
