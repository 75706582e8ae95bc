#pragma once

#include <cstdint>
#include <string>

namespace qv {

// What a sprite shows. The core names pictures; the desktop paints them, and the
// recording surface keeps the name so a test can see what a user would see.
struct Picture {
  enum Kind : int8_t { None, Face, Back, Marker, Preview, Panel, Icon, ReservePreview, GoalPreview, HomePreview };
  Kind kind = None;
  int16_t number = 0;
  // The parameters a preview is made from: a created game's parts take one, the
  // selection's preview two.
  int16_t a = 0, b = 0;

  bool operator==(const Picture&) const = default;
  std::string Name() const {
    switch (kind) {
      case Face: return "face " + std::to_string(number);
      case Back: return "back " + std::to_string(number);
      case Marker: return "marker " + std::to_string(number);
      case Preview: return "preview " + std::to_string(number) + " " + std::to_string(a) + " " + std::to_string(b);
      case Panel: return "panel " + std::to_string(number);
      case Icon: return "icon " + std::to_string(number);
      case ReservePreview: return "reserve preview " + std::to_string(number) + " " + std::to_string(a);
      case GoalPreview: return "goal preview " + std::to_string(number) + " " + std::to_string(a);
      case HomePreview: return "home preview " + std::to_string(number) + " " + std::to_string(a);
      case None: break;
    }
    return "none";
  }
};

}  // namespace qv
