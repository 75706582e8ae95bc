#pragma once

#include <string>

#include "surface/Rgb.h"

namespace qv {

// A picture behind the cards: a texture or a built-in picture of cImages by its number,
// or a picture file of the user's.
struct BackPicture {
  enum Kind { Texture, Image, File };
  Kind kind = Texture;
  int index = 0;
  std::string path;
  bool operator==(const BackPicture&) const = default;
};

// The table's background as the platform paints it, in the window's own pixels, under
// the cards. What it shows stays until it is cleared or painted over.
class IBackground {
 public:
  virtual ~IBackground() = default;
  virtual void Clear() = 0;
  // A vertical run from the top colour to the bottom one.
  virtual void Gradient(Rgb top, Rgb bottom) = 0;
  // Tiled over the window, or once in its middle over what it held. False when a file
  // cannot be loaded: it counts as missing and nothing changes.
  virtual bool ShowPicture(const BackPicture& picture, bool tile) = 0;
  // The wallpaper timer: ticks every intervalMs, or stopped for 0.
  virtual void SetWallTimer(int intervalMs) = 0;
  // Writes the picture that stands for the default custom image; false when it cannot.
  virtual bool SaveDefaultImage(const std::string& path) = 0;
};

}  // namespace qv
