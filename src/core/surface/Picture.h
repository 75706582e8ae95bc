#pragma once

#include <cstdint>
#include <string>

namespace qv {

// What a sprite shows. The core names pictures; the desktop paints them, and the
// recording surface keeps the name so a test can see what a user would see.
struct Picture {
  enum Kind : int8_t { None, Face, Back, Marker, ReservePreview, GoalPreview, HomePreview };
  Kind kind = None;
  int16_t number = 0;
  int16_t second = 0;  // a preview part is made from two parameters

  bool operator==(const Picture&) const = default;
  std::string Name() const {
    switch (kind) {
      case Face: return "face " + std::to_string(number);
      case Back: return "back " + std::to_string(number);
      case Marker: return "marker " + std::to_string(number);
      case ReservePreview: return "reserve preview " + std::to_string(number) + " " + std::to_string(second);
      case GoalPreview: return "goal preview " + std::to_string(number) + " " + std::to_string(second);
      case HomePreview: return "home preview " + std::to_string(number) + " " + std::to_string(second);
      case None: break;
    }
    return "none";
  }
};

}  // namespace qv
