#include "QtSprites.h"

#include <QCoreApplication>
#include <QGraphicsPixmapItem>
#include <QGraphicsScene>
#include <QGraphicsView>
#include <QThread>
#include <algorithm>
#include <cmath>

#include "CardPainter.h"
#include "engine/Places.h"

namespace qv {

namespace {
constexpr int kFrameMs = 16;  // one display frame at 60 Hz
constexpr int kCardRole = 0;  // item data: the card's PicID, for hit testing

int KeyOf(const Picture& p) { return p.kind * 1000 + p.number; }
}  // namespace

QtSprites::QtSprites(QGraphicsScene& scene, QGraphicsView& view) : scene_(scene), view_(view) {
  for (auto& set : sets_) {
    set.emplace_back();
    set.back().item = NewItem();
  }
  Of(Sprites::PicCD)[0].item->setData(kCardRole, 0);
  frameClock_.start();
  release_.setSingleShot(true);
  release_.setTimerType(Qt::PreciseTimer);
  QObject::connect(&release_, &QTimer::timeout, &view_, [this] {
    HoldUpdates(false);
    frameClock_.restart();
  });
}

QGraphicsPixmapItem* QtSprites::NewItem() const {
  auto* item = new QGraphicsPixmapItem;
  item->setVisible(false);
  item->setTransformationMode(Qt::FastTransformation);
  item->setShapeMode(QGraphicsPixmapItem::BoundingRectShape);
  scene_.addItem(item);
  return item;
}

void QtSprites::MakeElement(Sprites c, int i) {
  auto& set = Of(c);
  if (static_cast<int>(set.size()) <= i) set.resize(i + 1);
  if (!set[i].item) set[i].item = NewItem();
  set[i].picture = set[0].picture;
  set[i].item->setVisible(false);
  set[i].carrier = -1;
  set[i].item->setPos(set[0].item->pos());
  if (c == Sprites::PicCD) set[i].item->setData(kCardRole, i);
  Show(set[i]);
}

void QtSprites::RemoveElement(Sprites c, int i) {
  auto& set = Of(c);
  for (auto& e : set)
    if (e.carrier == i) e.carrier = -1;
  delete set[i].item;
  set[i].item = {};
  set[i].carrier = -1;
  while (set.size() > 1 && !set.back().item) set.pop_back();
}

const QPixmap& QtSprites::PixmapOf(const Picture& p) {
  const int key = KeyOf(p);
  auto it = cache_.find(key);
  if (it == cache_.end()) {
    const QSize size(static_cast<int>(std::lround(kCardWidth * zoom_)), static_cast<int>(std::lround(kCardHeight * zoom_)));
    it = cache_.insert(key, CardPainter::Paint(p, size, dpr_));
  }
  return *it;
}

void QtSprites::Show(Element& e) {
  if (e.picture.kind == Picture::None) return;
  e.item->setPixmap(PixmapOf(e.picture));
  // The pixmap is in pixels; the item stands in twips, so it is scaled back by the zoom.
  e.item->setScale(1.0 / zoom_);
}

void QtSprites::SetPicture(Sprites c, int i, Picture p) {
  Element& e = Of(c)[i];
  if (e.picture == p) return;
  e.picture = p;
  Show(e);
}

// A group that hangs on the pointer is kept here, not as Qt child items: a child would take
// on its carrier's scale from pixels to twips a second time and be drawn many times too big.
void QtSprites::Move(Sprites c, int i, double left, double top) {
  Element& e = Of(c)[i];
  if (c == Sprites::PicCD && e.carrier >= 0) {
    e.offset = QPointF(left, top);
    e.item->setPos(Of(c)[e.carrier].item->pos() + e.offset);
    return;
  }
  e.item->setPos(left, top);
  if (c == Sprites::PicCD) PlaceCarried(i);
}

double QtSprites::Left(Sprites c, int i) const {
  const Element& e = Of(c)[i];
  return e.carrier >= 0 ? e.offset.x() : e.item->pos().x();
}

double QtSprites::Top(Sprites c, int i) const {
  const Element& e = Of(c)[i];
  return e.carrier >= 0 ? e.offset.y() : e.item->pos().y();
}

void QtSprites::BringToFront(Sprites c, int i) {
  Of(c)[i].item->setZValue(++z_);
  if (c == Sprites::PicCD) PlaceCarried(i);
}

void QtSprites::PlaceCarried(int i) {
  auto& cards = Of(Sprites::PicCD);
  const QPointF at = cards[i].item->pos();
  // Riders are made in order from the lowest up, so their indices' order is not theirs:
  // they stand by their offsets.
  std::vector<Element*> riders;
  for (auto& e : cards)
    if (e.item && e.carrier == i) riders.push_back(&e);
  std::sort(riders.begin(), riders.end(), [](auto* a, auto* b) { return a->offset.y() < b->offset.y(); });
  for (Element* e : riders) {
    e->item->setPos(at + e->offset);
    e->item->setZValue(++z_);
  }
}
void QtSprites::SetVisible(Sprites c, int i, bool visible) { Of(c)[i].item->setVisible(visible); }

void QtSprites::SetParent(int card, int parent) {
  Element& e = Of(Sprites::PicCD)[card];
  if (parent < 0 && e.carrier >= 0) e.item->setPos(Of(Sprites::PicCD)[e.carrier].item->pos() + e.offset);
  e.carrier = parent;
  e.offset = QPointF();
}

void QtSprites::PaintFrame() {
  if (pacing_) {
    const qint64 wait = kFrameMs - frameClock_.elapsed();
    if (wait > 0) QThread::msleep(static_cast<unsigned long>(wait));
  }
  HoldUpdates(false);
  view_.viewport()->repaint();
  frameClock_.restart();
}

// A walk over many records yields after every card. The table is painted at most once a
// display frame: between two paints the view's updates are held, so a yield neither paints
// nor sends the window to the screen, and the view is painted whole at the next one that
// may paint, or by the release timer once the walk has ended.
void QtSprites::Yield() {
  if (frameClock_.elapsed() >= kFrameMs) {
    HoldUpdates(false);
    QCoreApplication::processEvents();
    frameClock_.restart();
    return;
  }
  HoldUpdates(true);
  QCoreApplication::processEvents();
}

void QtSprites::HoldUpdates(bool hold) {
  QWidget* viewport = view_.viewport();
  // Released at the next frame's time, so the walk's last position shows without delay.
  if (hold) release_.start(static_cast<int>(std::max<qint64>(1, kFrameMs - frameClock_.elapsed())));
  if (viewport->updatesEnabled() == !hold) return;
  viewport->setUpdatesEnabled(!hold);
}

void QtSprites::SetZoom(double pixelsPerTwip, double devicePixelRatio) {
  if (std::abs(pixelsPerTwip - zoom_) < 1e-9 && devicePixelRatio == dpr_) return;
  zoom_ = pixelsPerTwip;
  dpr_ = devicePixelRatio;
  cache_.clear();
  for (auto& set : sets_)
    for (auto& e : set)
      if (e.item) Show(e);
}

int QtSprites::CardAt(const QPointF& scenePos) const {
  for (QGraphicsItem* item : scene_.items(scenePos, Qt::IntersectsItemBoundingRect, Qt::DescendingOrder)) {
    if (item->isVisible() && item->data(kCardRole).isValid()) return item->data(kCardRole).toInt();
  }
  return -1;
}

}  // namespace qv
