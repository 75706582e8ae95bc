#pragma once

#include <QColor>
#include <QImage>
#include <QSize>

namespace qv {

// Paints the library's backgrounds in code: twelve seamless textures, six built-in
// pictures, dithered gradients. Each image carries the device pixel ratio it is for.
class BackgroundPainter {
 public:
  // A tile of texture `index` (1 to 12), seamless on every side.
  static QImage Texture(int index, qreal dpr);
  // Built-in picture `index` (1 to 6), at its own size.
  static QImage Picture(int index, qreal dpr);
  // A vertical run from top to bottom over `pixels` (device pixels), dithered so that a
  // long, slow run shows no bands.
  static QImage Gradient(QSize pixels, QColor top, QColor bottom);
  // The picture saved as the default custom image: a felt that tiles without a seam.
  static QImage DefaultImage();
  static constexpr QSize kTextureSize{256, 256};
  static constexpr QSize kPictureSize{1600, 1000};
};

}  // namespace qv
