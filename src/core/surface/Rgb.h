#pragma once

#include <cstdint>

namespace qv {

// A colour of the table's background.
struct Rgb {
  uint8_t r = 0, g = 0, b = 0;
  bool operator==(const Rgb&) const = default;
};

}  // namespace qv
