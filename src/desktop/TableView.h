#pragma once

#include <QGraphicsView>

namespace qv {

class Program;
class QtBackground;
class QtSprites;

// The view of the table. It scales the whole scene with one zoom factor, so the table's
// width fills the window and every card of a long pile stays in sight without scrolling,
// and it hands the pointer's events to the table in twips.
class TableView : public QGraphicsView {
  Q_OBJECT
 public:
  TableView(QGraphicsScene* scene, QWidget* parent = nullptr);
  void Attach(Program* app, QtSprites* sprites) { app_ = app, sprites_ = sprites; }
  // The background drawn under the cards; it follows the view's size.
  void ShowBackground(QtBackground* background);
  // Fits the zoom to the window and to the lowest card on the table.
  void FitTable();
  // Rings the places of a hinted move, in twips, while the table stays in the position
  // of `key`; KeepOutline takes them away once the table has changed.
  void Outline(const QList<QRectF>& places, uint64_t key);
  void KeepOutline(uint64_t key);
  const QList<QRectF>& Outlined() const { return outline_; }

 protected:
  void resizeEvent(QResizeEvent* event) override;
  void drawBackground(QPainter* painter, const QRectF& rect) override;
  void drawForeground(QPainter* painter, const QRectF& rect) override;
  void mousePressEvent(QMouseEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;
  void mouseDoubleClickEvent(QMouseEvent* event) override;

 private:
  QPointF InSprite(int card, QMouseEvent* event) const;

  Program* app_ = nullptr;
  QtSprites* sprites_ = nullptr;
  QtBackground* background_ = nullptr;
  int pressed_ = -1;  // the sprite the press went to; moves and the release follow it
  double zoom_ = 0;
  QList<QRectF> outline_;
  uint64_t outlineKey_ = 0;
};

}  // namespace qv
