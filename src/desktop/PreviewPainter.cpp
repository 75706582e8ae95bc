#include "PreviewPainter.h"

#include <QPainter>
#include <QPainterPath>
#include <algorithm>

namespace qv {

namespace {

constexpr int kUnitsWide = 250, kUnitsHigh = 140;
const QColor kFelt(0, 96, 32), kCard(250, 250, 245), kEdge(40, 40, 40), kText(235, 235, 220);

// Suit signs of a deck of 0 one, 1 two or 2 four suits, the first suit first.
QStringList SuitSigns(int suits) {
  if (suits <= 0) return {QString::fromUtf8("\u2660")};
  if (suits == 1) return {QString::fromUtf8("\u2660"), QString::fromUtf8("\u2665")};
  return {QString::fromUtf8("\u2660"), QString::fromUtf8("\u2665"), QString::fromUtf8("\u2666"),
          QString::fromUtf8("\u2663")};
}

bool Red(const QString& sign) { return sign == QString::fromUtf8("\u2665") || sign == QString::fromUtf8("\u2666"); }

void Caption(QPainter& p, const QRectF& r, const QString& text) {
  QFont f = p.font();
  f.setPixelSize(std::clamp(static_cast<int>(r.width() * 0.055), 8, 13));
  f.setBold(true);
  p.setFont(f);
  p.setPen(kText);
  p.drawText(r.adjusted(4, 2, -4, 0), Qt::AlignLeft | Qt::AlignTop, text);
}

void Slots(QPainter& p, const QRectF& r, int count, bool filled) {
  if (count <= 0) return;
  const qreal top = r.top() + r.height() * 0.36, h = r.height() * 0.58;
  const qreal w = std::min(h * 0.72, (r.width() - 8) / count - 3);
  for (int i = 0; i < count; ++i) {
    const QRectF card(r.left() + 4 + i * (w + 3), top, w, h);
    p.setPen(QPen(filled ? kEdge : kText, 1, filled ? Qt::SolidLine : Qt::DashLine));
    p.setBrush(filled ? QBrush(kCard) : Qt::NoBrush);
    p.drawRoundedRect(card, 2, 2);
  }
}

// The tableau: one small card per pile, the suits of the deck dealt over them in turn.
void Tableau(QPainter& p, const QRectF& r, int piles, int suits) {
  const QStringList signs = SuitSigns(suits);
  Caption(p, r, QString("Tableau: %1 piles, %2 suit%3").arg(piles).arg(signs.size()).arg(signs.size() > 1 ? "s" : ""));
  if (piles <= 0) return;
  const qreal top = r.top() + r.height() * 0.28, h = r.height() * 0.66;
  const qreal w = std::min(h * 0.72, (r.width() - 8) / 10.0 - 3);
  const qreal left = r.left() + (r.width() - piles * (w + 3)) / 2;
  QFont f = p.font();
  f.setPixelSize(std::max(8, static_cast<int>(w * 0.7)));
  f.setBold(false);
  p.setFont(f);
  for (int i = 0; i < piles; ++i) {
    const QRectF card(left + i * (w + 3), top, w, h);
    p.setPen(QPen(kEdge, 1));
    p.setBrush(kCard);
    p.drawRoundedRect(card, 2, 2);
    const QString sign = signs[i % signs.size()];
    p.setPen(Red(sign) ? QColor(200, 0, 0) : Qt::black);
    p.drawText(card, Qt::AlignCenter, sign);
  }
}

}  // namespace

QSize PreviewPartUnits(const Picture& part) {
  return part.kind == Picture::HomePreview ? QSize(kUnitsWide, kUnitsHigh - 36) : QSize(125, 36);
}

QPixmap PaintPreviewPart(const Picture& part, QSize size, qreal dpr) {
  QPixmap pix(size * dpr);
  pix.setDevicePixelRatio(dpr);
  pix.fill(kFelt);
  QPainter p(&pix);
  p.setRenderHint(QPainter::Antialiasing);
  const QRectF r(0, 0, size.width(), size.height());
  switch (part.kind) {
    case Picture::ReservePreview:
      Caption(p, r, part.number > 0 ? QString("Reserve: %1").arg(part.number) : QString("No reserve"));
      Slots(p, r, part.number, true);
      break;
    case Picture::GoalPreview:
      Caption(p, r, "Foundations: 8");
      Slots(p, r, 8, part.a > 0);
      break;
    case Picture::HomePreview: Tableau(p, r, part.number, part.a); break;
    default: break;
  }
  return pix;
}

PreviewBox::PreviewBox(QWidget* parent) : QWidget(parent) {
  setObjectName("Pic1");
  setMinimumSize(250, 140);
}

void PreviewBox::Clear() {
  parts_.clear();
  placed_.clear();
  update();
}

void PreviewBox::Paint(const Picture& picture, int x, int y) {
  parts_.push_back(picture);
  placed_.push_back({picture, x, y});
  update();
}

void PreviewBox::paintEvent(QPaintEvent*) {
  QPainter p(this);
  p.fillRect(rect(), kFelt.darker(130));
  const qreal sx = width() / static_cast<qreal>(kUnitsWide), sy = height() / static_cast<qreal>(kUnitsHigh);
  for (const Placed& part : placed_) {
    const QSize units = PreviewPartUnits(part.picture);
    const QRect target(qRound(part.x * sx), qRound(part.y * sy), qRound(units.width() * sx) - 1,
                       qRound(units.height() * sy) - 1);
    p.drawPixmap(target.topLeft(), PaintPreviewPart(part.picture, target.size(), devicePixelRatioF()));
  }
}

}  // namespace qv
