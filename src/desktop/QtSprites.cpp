#include "QtSprites.h"

#include <QCoreApplication>
#include <QGraphicsPixmapItem>
#include <QGraphicsScene>
#include <QGraphicsView>
#include <QThread>
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
  for (auto& set : sets_) set.push_back({NewItem(), {}});
  Of(Sprites::PicCD)[0].item->setData(kCardRole, 0);
  frameClock_.start();
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
  set[i].item->setParentItem(nullptr);
  set[i].item->setPos(set[0].item->pos());
  if (c == Sprites::PicCD) set[i].item->setData(kCardRole, i);
  Show(set[i]);
}

void QtSprites::RemoveElement(Sprites c, int i) {
  auto& set = Of(c);
  for (QGraphicsItem* child : set[i].item->childItems()) child->setParentItem(nullptr);
  delete set[i].item;
  set[i].item = nullptr;
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

void QtSprites::Move(Sprites c, int i, double left, double top) { Of(c)[i].item->setPos(left, top); }
double QtSprites::Left(Sprites c, int i) const { return Of(c)[i].item->pos().x(); }
double QtSprites::Top(Sprites c, int i) const { return Of(c)[i].item->pos().y(); }
void QtSprites::BringToFront(Sprites c, int i) { Of(c)[i].item->setZValue(++z_); }
void QtSprites::SetVisible(Sprites c, int i, bool visible) { Of(c)[i].item->setVisible(visible); }

void QtSprites::SetParent(int card, int parent) {
  auto& cards = Of(Sprites::PicCD);
  cards[card].item->setParentItem(parent < 0 ? nullptr : cards[parent].item);
}

void QtSprites::PaintFrame() {
  if (pacing_) {
    const qint64 wait = kFrameMs - frameClock_.elapsed();
    if (wait > 0) QThread::msleep(static_cast<unsigned long>(wait));
  }
  view_.viewport()->repaint();
  frameClock_.restart();
}

void QtSprites::Yield() { QCoreApplication::processEvents(); }

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
