#pragma once

#include <QElapsedTimer>
#include <QHash>
#include <QPixmap>
#include <QTimer>
#include <array>
#include <vector>

#include "surface/ISprites.h"

class QGraphicsPixmapItem;
class QGraphicsScene;
class QGraphicsView;

namespace qv {

// The table's sprites as pixmap items of a scene laid out in twips. Each picture is
// painted once for the current card size and device pixel ratio and shared by every
// item that shows it; the view maps twips to pixels with one zoom factor.
class QtSprites : public ISprites {
 public:
  QtSprites(QGraphicsScene& scene, QGraphicsView& view);

  void MakeElement(Sprites c, int i) override;
  void RemoveElement(Sprites c, int i) override;
  int Count(Sprites c) const override { return static_cast<int>(Of(c).size()); }
  void SetPicture(Sprites c, int i, Picture p) override;
  void Move(Sprites c, int i, double left, double top) override;
  double Left(Sprites c, int i) const override;
  double Top(Sprites c, int i) const override;
  void SetWidth(Sprites, int, double) override {}   // a carried group shows through its
  void SetHeight(Sprites, int, double) override {}  // children, which the scene draws anyway
  void BringToFront(Sprites c, int i) override;
  void SetVisible(Sprites c, int i, bool visible) override;
  void SetParent(int card, int parent) override;
  void PaintFrame() override;
  void Yield() override;

  // Pixels per twip, as the view shows the table; pictures are painted again when it changes.
  void SetZoom(double pixelsPerTwip, double devicePixelRatio);
  // Off in tests: frames then follow each other without waiting for the display.
  void SetFramePacing(bool on) { pacing_ = on; }
  // The card sprite under a point of the table, or -1.
  int CardAt(const QPointF& scenePos) const;

 private:
  struct Element {
    QGraphicsPixmapItem* item = nullptr;
    Picture picture;
    int carrier = -1;  // a card that rides on another stands at its carrier's place + offset
    QPointF offset;
  };
  std::vector<Element>& Of(Sprites c) { return sets_[static_cast<int>(c)]; }
  const std::vector<Element>& Of(Sprites c) const { return sets_[static_cast<int>(c)]; }
  QGraphicsPixmapItem* NewItem() const;
  const QPixmap& PixmapOf(const Picture& p);
  void Show(Element& e);
  // Places the cards that ride on card i, in their order above it.
  void PlaceCarried(int i);
  // Holds or releases the view's paints; a hold ends by itself a frame after the last one.
  void HoldUpdates(bool hold);

  QGraphicsScene& scene_;
  QGraphicsView& view_;
  std::array<std::vector<Element>, kSpriteCollections> sets_;
  QHash<int, QPixmap> cache_;  // by picture, for the current size
  double zoom_ = 0.05, dpr_ = 1.0;
  double z_ = 0;
  bool pacing_ = true;
  QElapsedTimer frameClock_;
  QTimer release_;
};

}  // namespace qv
