#pragma once

#include <QPixmap>
#include <QWidget>
#include <vector>

#include "surface/PictureBox.h"

namespace qv {

// The small picture of a game's rule parameters: where the core's Update_Pic paints the
// reserve, foundation and tableau parts. Units: the first row is 125 by 36.
class PreviewBox : public QWidget, public IPictureBox {
 public:
  explicit PreviewBox(QWidget* parent = nullptr);
  void Clear() override;
  void Paint(const Picture& picture, int x, int y) override;
  QSize sizeHint() const override { return {330, 190}; }
  // Parts as painted, for tests and for what a user would read.
  const std::vector<Picture>& Parts() const { return parts_; }

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  struct Placed {
    Picture picture;
    int x, y;
  };
  std::vector<Picture> parts_;
  std::vector<Placed> placed_;
};

// One preview part at a size: reserve piles, the eight foundations, or the tableau's piles
// with the suits of its deck.
QPixmap PaintPreviewPart(const Picture& part, QSize size, qreal dpr);
// Room of one part in preview units.
QSize PreviewPartUnits(const Picture& part);

}  // namespace qv
