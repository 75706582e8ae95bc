#include "SelectPainter.h"

#include <QLinearGradient>
#include <QPainter>
#include <QPainterPath>

#include "surface/cImages.h"

namespace qv {

namespace {

const QColor kFelt(0, 96, 0);
const QColor kCardEdge(60, 60, 60);

// A small card: face up white with a suit colour band, face down in the program's blue.
void SmallCard(QPainter& p, QRectF r, bool faceUp, int suit = 0) {
  p.setPen(QPen(kCardEdge, 0.6));
  p.setBrush(faceUp ? QColor(Qt::white) : QColor(40, 70, 160));
  p.drawRoundedRect(r, 1.5, 1.5);
  if (faceUp) {
    static const QColor kSuits[] = {QColor(20, 20, 20), QColor(200, 0, 0), QColor(20, 20, 20), QColor(200, 0, 0)};
    p.setPen(Qt::NoPen);
    p.setBrush(kSuits[suit % 4]);
    p.drawEllipse(QRectF(r.x() + r.width() * 0.3, r.y() + 2, r.width() * 0.4, r.width() * 0.4));
  }
}

void Caption(QPainter& p, QRectF r, const QString& text) {
  p.setPen(QColor(230, 240, 230));
  QFont f = p.font();
  f.setPixelSize(7);
  p.setFont(f);
  p.drawText(r, Qt::AlignLeft | Qt::AlignBottom, text);
}

// Room: 125 by 36 units for each of the two parts of the first row, 250 by 36 for the tableau.
void Preview(QPainter& p, int part, int a, int b) {
  const QRectF room(0, 0, part == cImages::PreviewTableau ? 250 : 125, 36);
  p.fillRect(room, kFelt);
  if (part == cImages::PreviewReserve) {
    const int piles = std::clamp(a, 0, 10);
    for (int i = 0; i < piles; ++i) SmallCard(p, QRectF(4 + i * 12, 4, 10, 14), std::clamp(b, 0, 13) > 0);
    Caption(p, room.adjusted(4, 0, 0, -2), piles > 0 ? QString("Reserve %1 x %2").arg(a).arg(b) : QString("No Reserve"));
  } else if (part == cImages::PreviewGoal) {
    for (int i = 0; i < 8; ++i) SmallCard(p, QRectF(4 + i * 14, 4, 12, 16), true, i / 2);
    Caption(p, room.adjusted(4, 0, 0, -2), QString("Foundations from %1").arg(a == 0 ? QString("Ace") : QString::number(a + 1)));
  } else {
    const int piles = std::clamp(a, 1, 10);
    const int suits = std::clamp(b, 0, 2) == 0 ? 1 : b == 1 ? 2 : 4;
    const qreal w = 230.0 / piles;
    for (int i = 0; i < piles; ++i)
      for (int k = 0; k < 3; ++k) SmallCard(p, QRectF(10 + i * w, 3 + k * 5, w - 4, 14), k == 2, (i * 7 + k) % suits);
    Caption(p, room.adjusted(10, 0, 0, -1), QString("%1 piles, %2 suit%3").arg(piles).arg(suits).arg(suits > 1 ? "s" : ""));
  }
}

void Panel(QPainter& p, int n, QSizeF size) {
  QLinearGradient g(0, 0, 0, size.height());
  if (n == cImages::SelectMaxPanel || n == cImages::SelectMinPanel) {
    g.setColorAt(0, QColor(235, 240, 250));
    g.setColorAt(1, QColor(200, 212, 232));
  } else {
    g.setColorAt(0, QColor(0, 110, 0));
    g.setColorAt(1, QColor(0, 70, 0));
  }
  p.fillRect(QRectF(QPointF(0, 0), size), g);
  if (n == cImages::BlankPanel) {
    // A fan of three backs: nothing chosen yet.
    const QPointF c(size.width() / 2, size.height() / 2);
    for (int i = -1; i <= 1; ++i) {
      p.save();
      p.translate(c);
      p.rotate(i * 12);
      SmallCard(p, QRectF(-18, -26, 36, 50), false);
      p.restore();
    }
  } else if (n == cImages::BlankSubPanel) {
    p.setPen(QColor(230, 240, 230));
    p.drawText(QRectF(QPointF(0, 0), size), Qt::AlignCenter, "Choose a game on the left");
  }
}

void Icon(QPainter& p, int n) {
  p.setPen(QPen(QColor(70, 70, 70), 0.8));
  if (n == cImages::FolderIcon) {
    p.setBrush(QColor(240, 200, 80));
    QPainterPath path;
    path.moveTo(1, 4);
    path.lineTo(6, 4);
    path.lineTo(7.5, 5.5);
    path.lineTo(15, 5.5);
    path.lineTo(15, 14);
    path.lineTo(1, 14);
    path.closeSubpath();
    p.drawPath(path);
  } else if (n == cImages::BulletIcon) {
    p.setBrush(QColor(200, 0, 0));
    p.drawEllipse(QRectF(5, 5, 6, 6));
  } else {
    SmallCard(p, QRectF(2, 1, 9, 12), false);
    SmallCard(p, QRectF(5, 3, 9, 12), true, n == cImages::GameSelectedIcon ? 1 : 0);
  }
}

}  // namespace

QPixmap PaintSelectPicture(const Picture& picture, QSize size, qreal dpr) {
  if (size.isEmpty() || !(dpr > 0) || dpr > 16) return {};
  QPixmap pixmap(qRound(size.width() * dpr), qRound(size.height() * dpr));
  pixmap.setDevicePixelRatio(dpr);
  pixmap.fill(Qt::transparent);
  QPainter p(&pixmap);
  p.setRenderHint(QPainter::Antialiasing);
  if (picture.kind == Picture::Preview) {
    p.scale(size.width() / (picture.number == cImages::PreviewTableau ? 250.0 : 125.0), size.height() / 36.0);
    Preview(p, picture.number, picture.a, picture.b);
  } else if (picture.kind == Picture::Panel) {
    Panel(p, picture.number, size);
  } else if (picture.kind == Picture::Icon) {
    p.scale(size.width() / 16.0, size.height() / 16.0);
    Icon(p, picture.number);
  }
  return pixmap;
}

QIcon SelectIcon(const Picture& picture) {
  QIcon icon;
  for (int side : {16, 32}) icon.addPixmap(PaintSelectPicture(picture, QSize(side, side), 1.0));
  return icon;
}

}  // namespace qv
