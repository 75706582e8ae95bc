#include "TableView.h"

#include <QGraphicsItem>
#include <QMouseEvent>
#include <QPainter>
#include <algorithm>

#include "QtBackground.h"
#include "QtSprites.h"
#include "engine/Pointer.h"
#include "session/Program.h"

namespace qv {

namespace {
constexpr double kTableWidth = 12615;   // the layout's width plus one card: half a card of margin
constexpr double kMinTableHeight = 6400;  // a deal with room for its piles to grow
constexpr double kBottomMargin = 300;
}  // namespace

TableView::TableView(QGraphicsScene* scene, QWidget* parent) : QGraphicsView(scene, parent) {
  setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  setAlignment(Qt::AlignHCenter | Qt::AlignTop);
  setFrameShape(QFrame::NoFrame);
  setViewportUpdateMode(QGraphicsView::MinimalViewportUpdate);
  setMouseTracking(false);
}

void TableView::FitTable() {
  // The zoom holds still while cards hang on the pointer; the drop fits the table again.
  if (!sprites_ || !app_ || viewport()->width() <= 0 || app_->drag.Dragging) return;
  const double lowest = std::max(kMinTableHeight, scene()->itemsBoundingRect().bottom() + kBottomMargin);
  const double byWidth = viewport()->width() / kTableWidth;
  const double byHeight = viewport()->height() / lowest;
  const double zoom = std::min(byWidth, byHeight);
  // Small changes of height are absorbed, so a growing pile does not repaint every picture.
  if (zoom_ > 0 && std::abs(zoom - zoom_) / zoom_ < 0.02 && zoom <= zoom_) return;
  zoom_ = zoom;
  setTransform(QTransform::fromScale(zoom, zoom));
  // The table keeps its width in twips; when its height rules, it stands centred.
  setSceneRect(0, 0, kTableWidth, viewport()->height() / zoom);
  sprites_->SetZoom(zoom, devicePixelRatioF());
}

void TableView::ShowBackground(QtBackground* background) {
  background_ = background;
  background_->Resize(viewport()->size(), devicePixelRatioF());
}

void TableView::Outline(const QList<QRectF>& places, uint64_t key) {
  outline_ = places;
  outlineKey_ = key;
  viewport()->update();
}

void TableView::KeepOutline(uint64_t key) {
  if (!outline_.isEmpty() && key != outlineKey_) Outline({}, 0);
}

void TableView::drawForeground(QPainter* painter, const QRectF&) {
  if (outline_.isEmpty()) return;
  painter->save();
  painter->setRenderHint(QPainter::Antialiasing);
  // A bright ring a few pixels wide whatever the zoom, set off by a dark edge.
  const qreal px = 1.0 / std::max(transform().m11(), 1e-6);
  for (const QRectF& r : outline_) {
    const QRectF ring = r.adjusted(-3 * px, -3 * px, 3 * px, 3 * px);
    painter->setPen(QPen(QColor(20, 20, 20, 160), 6 * px));
    painter->drawRoundedRect(ring, 60, 60);
    painter->setPen(QPen(QColor(255, 214, 0), 3 * px));
    painter->drawRoundedRect(ring, 60, 60);
  }
  painter->restore();
}

void TableView::drawBackground(QPainter* painter, const QRectF& rect) {
  if (!background_) return QGraphicsView::drawBackground(painter, rect);
  // Sized here, so a move to a screen of another scale is followed as a resize is.
  background_->Resize(viewport()->size(), devicePixelRatioF());
  // A copy of the ready picture, in the viewport's pixels whatever the zoom.
  const QPixmap& canvas = background_->Canvas();
  const QRectF exposed = mapFromScene(rect).boundingRect();
  const qreal dpr = canvas.width() / std::max(1.0, static_cast<qreal>(viewport()->width()));
  painter->save();
  painter->resetTransform();
  painter->setCompositionMode(QPainter::CompositionMode_Source);  // opaque: a plain copy
  painter->drawPixmap(exposed, canvas, QRectF(exposed.topLeft() * dpr, exposed.size() * dpr));
  painter->restore();
}

void TableView::resizeEvent(QResizeEvent* event) {
  QGraphicsView::resizeEvent(event);
  zoom_ = 0;
  FitTable();
}

QPointF TableView::InSprite(int card, QMouseEvent* event) const {
  const QPointF scenePos = mapToScene(event->position().toPoint());
  return scenePos - QPointF(sprites_->Left(Sprites::PicCD, card), sprites_->Top(Sprites::PicCD, card));
}

void TableView::mousePressEvent(QMouseEvent* event) {
  if (!app_) return;
  pressed_ = sprites_->CardAt(mapToScene(event->position().toPoint()));
  if (pressed_ < 0) return;
  const QPointF p = InSprite(pressed_, event);
  PointerPressed(*app_, pressed_, p.x(), p.y());
}

void TableView::mouseMoveEvent(QMouseEvent* event) {
  if (!app_ || pressed_ < 0) return;
  const QPointF p = InSprite(pressed_, event);
  PointerMoved(*app_, pressed_, p.x(), p.y());
}

void TableView::mouseReleaseEvent(QMouseEvent*) {
  if (!app_ || pressed_ < 0) return;
  const int card = pressed_;
  pressed_ = -1;
  PointerReleased(*app_, card);
  FitTable();
}

void TableView::mouseDoubleClickEvent(QMouseEvent* event) {
  if (!app_) return;
  const int card = sprites_->CardAt(mapToScene(event->position().toPoint()));
  if (card >= 0) PointerDoubleClicked(*app_, card);
}

}  // namespace qv
