#pragma once

#include <QIcon>
#include <QPixmap>
#include <QString>

#include "surface/Picture.h"

namespace qv {

// Paints every picture of the table in code: the 52 card faces, the backs of the decks
// and the pile markers. No image files are needed.
class CardPainter {
 public:
  // The picture at `size` (device-independent pixels) for a screen with `dpr` device
  // pixels per pixel; the pixmap carries that ratio, so it is drawn sharp and unscaled.
  static QPixmap Paint(const Picture& picture, QSize size, qreal dpr);
};

// The icon of a command key (New, Undo, ... and FOLDER, FILE, Q1), drawn as one set.
QIcon CommandIcon(const QString& key);

}  // namespace qv
