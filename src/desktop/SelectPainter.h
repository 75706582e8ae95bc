#pragma once

#include <QIcon>
#include <QPixmap>

#include "surface/Picture.h"

namespace qv {

// Paints the selection dialog's pictures in code: the preview parts made from two rule
// parameters, the dialog's backgrounds and blank panels, and the tree's icons.
QPixmap PaintSelectPicture(const Picture& picture, QSize size, qreal dpr);
QIcon SelectIcon(const Picture& picture);

}  // namespace qv
