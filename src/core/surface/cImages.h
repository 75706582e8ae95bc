#pragma once

#include "surface/Picture.h"

namespace qv {

// The picture library as the table sees it: every picture is named by a token, and
// the desktop program paints the token. Nothing here needs a display.
class cImages {
 public:
  Picture CardFace(int n) const { return {Picture::Face, static_cast<int16_t>(n)}; }
  void EndFaces() {}
  Picture CardBack(int deckIndex) const { return {Picture::Back, static_cast<int16_t>(deckIndex)}; }
  Picture PileMarker(int n) const { return {Picture::Marker, static_cast<int16_t>(n)}; }
  void EndMarkers() {}
};

}  // namespace qv
