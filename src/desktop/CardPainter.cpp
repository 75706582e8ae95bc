#include "CardPainter.h"

#include <QFont>
#include <QFontMetricsF>
#include <QLinearGradient>
#include <QPainter>
#include <QPainterPath>
#include <QRadialGradient>
#include <QtMath>

#include <algorithm>
#include <array>
#include <cmath>
#include <vector>

namespace qv {

namespace {

// Every picture is drawn in the units of a card, 1065 by 1440, and scaled to the pixmap:
// one drawing serves every size, from the laptop table to a large screen.
constexpr qreal kW = 1065;
constexpr qreal kH = 1440;
constexpr qreal kCorner = 70;
constexpr QRectF kCard(0, 0, kW, kH);
constexpr QPointF kMiddle(kW / 2, kH / 2);

constexpr int kSuits = 4;
constexpr int kRanks = 13;
constexpr int kDecks = 12;
constexpr int kMarkers = 16;
constexpr int kFoundationMarker = 13;
constexpr int kStockMarker = 15;

const QColor kRedInk(200, 20, 36);
const QColor kBlackInk(20, 20, 26);
const QColor kGold(222, 170, 48);
const QColor kOutline(45, 35, 35);

// Suits 1 (hearts) and 3 (diamonds) are red, so faces alternate in colour by suit.
QColor Ink(int suit) { return suit % 2 ? kRedInk : kBlackInk; }

// ---------------------------------------------------------------- suit symbols

// Scales a shape into the unit square, centred, keeping its proportions.
QPainterPath FitToUnit(const QPainterPath& path) {
  const QRectF box = path.boundingRect();
  const qreal scale = 1.0 / std::max(box.width(), box.height());
  QTransform t;
  t.translate(0.5, 0.5);
  t.scale(scale, scale);
  t.translate(-box.center().x(), -box.center().y());
  return t.map(path);
}

QPainterPath HeartShape() {
  QPainterPath p;
  p.moveTo(50, 24);
  p.cubicTo(44, 6, 22, 0, 10, 10);
  p.cubicTo(-4, 22, -1, 46, 14, 60);
  p.cubicTo(27, 72, 42, 82, 50, 96);
  p.cubicTo(58, 82, 73, 72, 86, 60);
  p.cubicTo(101, 46, 104, 22, 90, 10);
  p.cubicTo(78, 0, 56, 6, 50, 24);
  return p;
}

// An upside-down heart on a flared stem.
QPainterPath SpadeShape() {
  QPainterPath p;
  p.moveTo(50, 0);
  p.cubicTo(42, 16, 26, 28, 13, 40);
  p.cubicTo(-2, 54, -2, 76, 13, 83);
  p.cubicTo(26, 89, 40, 85, 47, 75);
  p.cubicTo(46, 86, 40, 94, 30, 100);
  p.lineTo(70, 100);
  p.cubicTo(60, 94, 54, 86, 53, 75);
  p.cubicTo(60, 85, 74, 89, 87, 83);
  p.cubicTo(102, 76, 102, 54, 87, 40);
  p.cubicTo(74, 28, 58, 16, 50, 0);
  return p;
}

QPainterPath ClubShape() {
  QPainterPath leaves;
  leaves.addEllipse(QPointF(50, 24), 22, 22);
  leaves.addEllipse(QPointF(25, 60), 22, 22);
  leaves.addEllipse(QPointF(75, 60), 22, 22);
  leaves.addEllipse(QPointF(50, 52), 12, 12);
  QPainterPath stem;
  stem.moveTo(47, 55);
  stem.cubicTo(47, 78, 42, 92, 31, 100);
  stem.lineTo(69, 100);
  stem.cubicTo(58, 92, 53, 78, 53, 55);
  stem.closeSubpath();
  QPainterPath club = leaves.united(stem);
  club.setFillRule(Qt::WindingFill);
  return club;
}

QPainterPath DiamondShape() {
  QPainterPath p;
  p.moveTo(50, 0);
  p.quadTo(63, 28, 88, 50);
  p.quadTo(63, 72, 50, 100);
  p.quadTo(37, 72, 12, 50);
  p.quadTo(37, 28, 50, 0);
  return p;
}

const QPainterPath& SuitShape(int suit) {
  static const std::array<QPainterPath, kSuits> shapes{
      FitToUnit(SpadeShape()), FitToUnit(HeartShape()), FitToUnit(ClubShape()),
      FitToUnit(DiamondShape())};
  return shapes[suit];
}

void DrawSuit(QPainter& p, int suit, QPointF centre, qreal size, const QColor& colour,
              bool upsideDown = false) {
  p.save();
  p.translate(centre);
  if (upsideDown) p.rotate(180);
  p.scale(size, size);
  p.translate(-0.5, -0.5);
  p.fillPath(SuitShape(suit), colour);
  p.restore();
}

// ---------------------------------------------------------------- letters

// A letter as a shape: baseline at y 0, capital height 1, left edge at x 0. Drawn as a
// path, it scales like the suit symbols and keeps its weight at every size.
struct Glyph {
  QPainterPath path;
  qreal width = 1;
};

Glyph MakeGlyph(const QString& text) {
  QFont font(QStringLiteral("DejaVu Sans"));
  font.setPixelSize(200);
  font.setBold(true);
  QPainterPath path;
  path.addText(0, 0, font, text);
  const qreal cap = QFontMetricsF(font).capHeight();
  const QRectF box = path.boundingRect();
  QTransform t;
  t.scale(1 / cap, 1 / cap);
  t.translate(-box.left(), 0);
  return {t.map(path), box.width() / cap};
}

const Glyph& RankGlyph(int num) {
  static const std::array<Glyph, kRanks> glyphs = [] {
    const char* names[kRanks] = {"A", "2", "3", "4", "5", "6", "7", "8", "9", "10", "J", "Q", "K"};
    std::array<Glyph, kRanks> made;
    for (int i = 0; i < kRanks; ++i) made[i] = MakeGlyph(QString::fromLatin1(names[i]));
    return made;
  }();
  return glyphs[num];
}

// Fills `box` with the letter: its capital height is the box's height; a letter wider
// than the box ("10") is narrowed to fit rather than shrunk, so it stays as tall.
void DrawGlyph(QPainter& p, const Glyph& glyph, const QRectF& box, const QColor& colour) {
  const qreal h = box.height();
  const qreal sx = h * std::min<qreal>(1.0, box.width() / (glyph.width * h));
  p.save();
  p.translate(box.center().x() - glyph.width * sx / 2, box.bottom());
  p.scale(sx, h);
  p.fillPath(glyph.path, colour);
  p.restore();
}

// ---------------------------------------------------------------- the card

// The white card with its thin border; `px` is the size of a screen pixel in card units,
// so the border stays one pixel wide at every size.
void DrawBlankCard(QPainter& p, qreal px) {
  const qreal line = std::max<qreal>(px, 6);
  QPainterPath outline;
  outline.addRoundedRect(kCard.adjusted(line / 2, line / 2, -line / 2, -line / 2), kCorner, kCorner);
  p.fillPath(outline, Qt::white);
  p.strokePath(outline, QPen(QColor(110, 110, 115), line));
}

// The index sits in the top strip a covering card leaves visible (250 of 1440 units):
// the rank, and the suit beside it rather than below, so both show on a pile.
constexpr QRectF kIndexRank(30, 40, 214, 190);

void DrawIndex(QPainter& p, int suit, int num) {
  DrawGlyph(p, RankGlyph(num), kIndexRank, Ink(suit));
  DrawSuit(p, suit, QPointF(kIndexRank.right() + 100, kIndexRank.center().y()), 180, Ink(suit));
}

// Pip places: column -1, 0 or 1; row in twelfths of the pip field, top to bottom.
struct Pip {
  int col;
  int row;
};

const std::vector<Pip>& PipLayout(int rank) {
  static const std::array<std::vector<Pip>, 9> layouts{{
      {{0, 0}, {0, 12}},
      {{0, 0}, {0, 6}, {0, 12}},
      {{-1, 0}, {1, 0}, {-1, 12}, {1, 12}},
      {{-1, 0}, {1, 0}, {0, 6}, {-1, 12}, {1, 12}},
      {{-1, 0}, {1, 0}, {-1, 6}, {1, 6}, {-1, 12}, {1, 12}},
      {{-1, 0}, {1, 0}, {0, 3}, {-1, 6}, {1, 6}, {-1, 12}, {1, 12}},
      {{-1, 0}, {1, 0}, {0, 3}, {-1, 6}, {1, 6}, {0, 9}, {-1, 12}, {1, 12}},
      {{-1, 0}, {1, 0}, {-1, 4}, {1, 4}, {0, 6}, {-1, 8}, {1, 8}, {-1, 12}, {1, 12}},
      {{-1, 0}, {1, 0}, {0, 2}, {-1, 4}, {1, 4}, {-1, 8}, {1, 8}, {0, 10}, {-1, 12}, {1, 12}},
  }};
  return layouts[rank - 2];
}

void DrawPips(QPainter& p, int suit, int rank) {
  constexpr qreal kColumn = 240, kTop = 372, kBottom = 1068, kPip = 182;
  for (const Pip& pip : PipLayout(rank)) {
    const QPointF at(kMiddle.x() + pip.col * kColumn, kTop + (kBottom - kTop) * pip.row / 12);
    DrawSuit(p, suit, at, kPip, Ink(suit), pip.row > 6);
  }
}

void DrawAce(QPainter& p, int suit) {
  p.setPen(QPen(Ink(suit), 5));
  p.setBrush(Qt::NoBrush);
  p.drawEllipse(kMiddle, 330, 330);
  p.drawEllipse(kMiddle, 310, 310);
  DrawSuit(p, suit, kMiddle, 440, Ink(suit));
}

// ---------------------------------------------------------------- court cards

// The colours of a court figure by suit; black suits use no red, so a black card stays
// free of red ink.
struct Palette {
  QColor robe, trim, jewel;
};

Palette CourtPalette(int suit) {
  static const std::array<Palette, kSuits> palettes{{
      {QColor(38, 62, 130), QColor(30, 30, 38), QColor(80, 150, 220)},
      {QColor(192, 30, 44), QColor(36, 70, 150), QColor(36, 70, 150)},
      {QColor(28, 108, 76), QColor(38, 62, 130), QColor(245, 245, 245)},
      {QColor(40, 84, 168), QColor(192, 30, 44), QColor(200, 20, 36)},
  }};
  return palettes[suit];
}

const QColor kSkin(248, 220, 192);
const QColor kCream(255, 250, 236);

void Outlined(QPainter& p, const QPainterPath& path, const QColor& fill, qreal width = 0.7) {
  p.fillPath(path, fill);
  p.strokePath(path, QPen(kOutline, width, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
}

// The figure is drawn in its own units: the half panel is 100 wide and `bottom` (about 64)
// high, the head centred at (50, 27), the bust cut by the panel's middle line.
QPainterPath Sleeve(qreal bottom) {
  QPainterPath sleeve;
  sleeve.moveTo(13, bottom + 2);
  sleeve.lineTo(13, 55);
  sleeve.cubicTo(13, 49, 16, 46, 23, 44.5);
  sleeve.lineTo(24, bottom + 2);
  sleeve.closeSubpath();
  return sleeve;
}

void DrawRobe(QPainter& p, const Palette& c, qreal bottom) {
  QPainterPath robe;
  robe.moveTo(13, bottom + 2);
  robe.lineTo(13, 55);
  robe.cubicTo(13, 48, 18, 44.5, 28, 43.5);
  robe.lineTo(40, 42);
  robe.lineTo(60, 42);
  robe.lineTo(72, 43.5);
  robe.cubicTo(82, 44.5, 87, 48, 87, 55);
  robe.lineTo(87, bottom + 2);
  robe.closeSubpath();
  Outlined(p, robe, c.robe);
  const QPainterPath sleeve = Sleeve(bottom);
  Outlined(p, sleeve, c.trim);
  Outlined(p, QTransform(-1, 0, 0, 1, 100, 0).map(sleeve), c.trim);
  QPainterPath hems;
  for (qreal x : {25.0, 75.0}) hems.addRect(x - 1, 44, 2, bottom - 42);
  hems.addRect(43, 44, 14, bottom - 42);
  Outlined(p, hems, kGold, 0.5);
  QPainterPath band;
  band.addRect(45, 44, 10, bottom - 42);
  Outlined(p, band, c.trim, 0.5);
  QPainterPath buttons;
  for (qreal y = 52; y < bottom; y += 5.5) buttons.addEllipse(QPointF(50, y), 1.4, 1.4);
  Outlined(p, buttons, kGold, 0.4);
}

void DrawCollar(QPainter& p, int num, const Palette& c) {
  QPainterPath collar;
  collar.moveTo(29, 43);
  collar.quadTo(50, 62, 71, 43);
  collar.quadTo(50, 51, 29, 43);
  const QColor fill = num == 12 ? QColor(250, 250, 250) : num == 11 ? kGold : c.trim;
  Outlined(p, collar, fill);
  QPainterPath spots;  // the king's ermine, the queen's pearls, the jack's studs
  for (qreal x : {35.0, 42.5, 50.0, 57.5, 65.0}) {
    const qreal t = (x - 29) / 42;
    const QPointF at(x, 43 + 2 * t * (1 - t) * 13.5 + 2.2);
    if (num == 12)
      spots.addRect(at.x() - 0.6, at.y() - 1.2, 1.2, 2.4);
    else
      spots.addEllipse(at, 0.9, 0.9);
  }
  p.fillPath(spots, num == 12 ? kOutline : num == 11 ? QColor(250, 250, 250) : kGold);
}

void DrawHand(QPainter& p, QPointF at) {
  QPainterPath hand;
  hand.addEllipse(at, 3.4, 3);
  Outlined(p, hand, kSkin, 0.5);
}

// What the figure holds: the king a sceptre, the queen a flower, the jack a spear.
void DrawAttribute(QPainter& p, int num, const Palette& c, qreal bottom) {
  const QPointF hand(73, 55);
  if (num == 11) {
    p.setPen(QPen(QColor(40, 120, 60), 1.3, Qt::SolidLine, Qt::RoundCap));
    p.drawLine(hand, QPointF(79, 19));
    QPainterPath petals;
    for (int i = 0; i < 6; ++i)
      petals.addEllipse(QPointF(79 + 3.6 * std::cos(i * M_PI / 3), 15 + 3.6 * std::sin(i * M_PI / 3)), 2.6, 2.6);
    petals.setFillRule(Qt::WindingFill);
    Outlined(p, petals, c.jewel, 0.4);
    QPainterPath middle;
    middle.addEllipse(QPointF(79, 15), 2, 2);
    Outlined(p, middle, kGold, 0.4);
  } else {
    const QPointF top(76, num == 12 ? 12 : 8);
    p.setPen(QPen(kOutline, 3.4, Qt::SolidLine, Qt::RoundCap));
    p.drawLine(QPointF(72, bottom), top);
    p.setPen(QPen(num == 12 ? kGold : QColor(130, 86, 44), 2.2, Qt::SolidLine, Qt::RoundCap));
    p.drawLine(QPointF(72, bottom), top);
    QPainterPath head;
    if (num == 12) {
      head.addEllipse(QPointF(76.3, 9), 3.6, 3.6);
      head.addRect(75.7, 1.8, 1.2, 4.2);
      head.addRect(73.9, 3.2, 4.8, 1.2);
      head.setFillRule(Qt::WindingFill);
    } else {
      head.addPolygon(QPolygonF({QPointF(76.4, 0), QPointF(79.6, 5.5), QPointF(76.4, 10), QPointF(73.2, 5.5)}));
      head.closeSubpath();
    }
    Outlined(p, head, num == 12 ? kGold : QColor(205, 210, 220), 0.5);
  }
  DrawHand(p, hand);
}

void DrawHairBehind(QPainter& p, int num) {
  QPainterPath hair;
  if (num == 11) {  // the queen's long hair falls to the shoulders
    hair.moveTo(41, 17);
    hair.cubicTo(33, 25, 33, 42, 35, 49);
    hair.lineTo(65, 49);
    hair.cubicTo(67, 42, 67, 25, 59, 17);
    hair.closeSubpath();
    Outlined(p, hair, QColor(150, 100, 40));
  } else if (num == 10) {
    hair.addEllipse(QPointF(50, 25), 11, 11.5);
    Outlined(p, hair, QColor(80, 52, 28));
  }
}

void DrawBeard(QPainter& p) {
  QPainterPath beard;
  beard.moveTo(40.5, 26);
  beard.cubicTo(41, 38, 45, 44, 50, 45);
  beard.cubicTo(55, 44, 59, 38, 59.5, 26);
  beard.cubicTo(58, 31.5, 55, 32.5, 50, 32);
  beard.cubicTo(45, 32.5, 42, 31.5, 40.5, 26);
  Outlined(p, beard, QColor(236, 236, 240), 0.5);
}

void DrawHead(QPainter& p, int num) {
  QPainterPath neck;
  neck.addRect(45.5, 34, 9, 10);
  Outlined(p, neck, kSkin);
  QPainterPath head;
  head.addEllipse(QPointF(50, 27), 9.5, 11.5);
  Outlined(p, head, kSkin);
  if (num == 12) DrawBeard(p);
  p.setPen(Qt::NoPen);
  p.setBrush(kOutline);
  p.drawEllipse(QPointF(46.3, 26.3), 1.1, 1.1);
  p.drawEllipse(QPointF(53.7, 26.3), 1.1, 1.1);
  p.setPen(QPen(kOutline, 0.55, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
  p.drawLine(QPointF(44.3, 23.6), QPointF(48, 23));
  p.drawLine(QPointF(52, 23), QPointF(55.7, 23.6));
  p.drawPolyline(QPolygonF({QPointF(50, 27.5), QPointF(49, 31), QPointF(50.6, 31.3)}));
  p.setPen(QPen(QColor(140, 60, 55), 0.9, Qt::SolidLine, Qt::RoundCap));
  p.drawLine(QPointF(47.8, 34.2), QPointF(52.2, 34.2));
}

QPainterPath KingCrown() {
  QPainterPath crown;
  crown.moveTo(39.5, 20);
  crown.lineTo(37.5, 6);
  crown.lineTo(44, 12);
  crown.lineTo(50, 3.5);
  crown.lineTo(56, 12);
  crown.lineTo(62.5, 6);
  crown.lineTo(60.5, 20);
  crown.closeSubpath();
  for (QPointF tip : {QPointF(37.5, 5.5), QPointF(50, 3), QPointF(62.5, 5.5)}) crown.addEllipse(tip, 1.5, 1.5);
  crown.setFillRule(Qt::WindingFill);
  return crown;
}

QPainterPath QueenCrown() {
  QPainterPath crown;
  crown.moveTo(41, 19.5);
  crown.lineTo(40, 9);
  crown.quadTo(45, 13.5, 50, 6.5);
  crown.quadTo(55, 13.5, 60, 9);
  crown.lineTo(59, 19.5);
  crown.closeSubpath();
  crown.addEllipse(QPointF(50, 5), 1.9, 1.9);
  crown.setFillRule(Qt::WindingFill);
  return crown;
}

void DrawCap(QPainter& p, const Palette& c) {
  QPainterPath feather;
  feather.moveTo(59, 14);
  feather.cubicTo(66, 5, 74, 2, 83, 2.5);
  feather.cubicTo(76, 6.5, 69, 11, 62, 18);
  feather.closeSubpath();
  Outlined(p, feather, QColor(245, 245, 245), 0.5);
  QPainterPath cap;
  cap.moveTo(38, 21);
  cap.cubicTo(35.5, 9, 50, 5, 63, 10.5);
  cap.cubicTo(66, 13, 64.5, 18.5, 62, 21);
  cap.closeSubpath();
  Outlined(p, cap, c.trim);
  QPainterPath band;
  band.addRect(39, 18.5, 22.5, 3);
  Outlined(p, band, kGold, 0.5);
}

void DrawHeadwear(QPainter& p, int num, const Palette& c) {
  if (num == 10) return DrawCap(p, c);
  Outlined(p, num == 12 ? KingCrown() : QueenCrown(), kGold);
  QPainterPath jewel;
  jewel.addEllipse(QPointF(50, 15.5), 1.9, 1.9);
  Outlined(p, jewel, c.jewel, 0.4);
}

void DrawFigure(QPainter& p, int suit, int num, qreal bottom) {
  const Palette c = CourtPalette(suit);
  DrawRobe(p, c, bottom);
  DrawHairBehind(p, num);
  DrawCollar(p, num, c);
  DrawHead(p, num);
  DrawHeadwear(p, num, c);
  DrawAttribute(p, num, c, bottom);
}

constexpr QRectF kPanel(175, 262, 715, 916);
constexpr qreal kPanelCorner = 24;

// One half of the double-headed court picture; the other half is the same turned round.
void DrawCourtHalf(QPainter& p, int suit, int num) {
  const QRectF half(kPanel.left(), kPanel.top(), kPanel.width(), kPanel.height() / 2);
  p.save();
  p.setClipRect(half);
  p.translate(half.topLeft());
  const qreal unit = half.width() / 100;
  p.scale(unit, unit);
  DrawFigure(p, suit, num, half.height() / unit);
  p.restore();
  DrawGlyph(p, RankGlyph(num), QRectF(kPanel.left() + 34, kPanel.top() + 40, 120, 110), Ink(suit));
  DrawSuit(p, suit, QPointF(kPanel.left() + 94, kPanel.top() + 222), 100, Ink(suit));
}

// Paints white over the corners of `box` that lie outside its rounded outline: a rectangle
// clip (fast, unlike a rounded one) and this give a picture rounded corners on the card.
void WhiteOutside(QPainter& p, const QRectF& box, qreal radius) {
  QPainterPath corners;
  corners.addRect(box);
  QPainterPath inside;
  inside.addRoundedRect(box, radius, radius);
  p.fillPath(corners.subtracted(inside), Qt::white);
}

void DrawCourt(QPainter& p, int suit, int num) {
  QLinearGradient light(kPanel.topLeft(), kPanel.bottomLeft());
  light.setColorAt(0, kCream.darker(106));
  light.setColorAt(0.5, kCream);
  light.setColorAt(1, kCream.darker(106));
  p.fillRect(kPanel, light);
  DrawCourtHalf(p, suit, num);
  p.save();
  p.translate(kW, kH);  // the panel is centred on the card, so a half turn maps it onto itself
  p.rotate(180);
  DrawCourtHalf(p, suit, num);
  p.restore();
  WhiteOutside(p, kPanel, kPanelCorner);
  p.setPen(QPen(Ink(suit), 6));
  p.drawLine(QPointF(kPanel.left(), kMiddle.y()), QPointF(kPanel.right(), kMiddle.y()));
  QPainterPath inner;
  inner.addRoundedRect(kPanel.adjusted(14, 14, -14, -14), 14, 14);
  p.strokePath(inner, QPen(kGold, 6));
  QPainterPath frame;
  frame.addRoundedRect(kPanel, kPanelCorner, kPanelCorner);
  p.strokePath(frame, QPen(Ink(suit), 10));
}

void DrawCardFace(QPainter& p, int n, qreal px) {
  const int suit = (n - 1) / kRanks;
  const int num = (n - 1) % kRanks;
  DrawBlankCard(p, px);
  if (num == 0)
    DrawAce(p, suit);
  else if (num < 10)
    DrawPips(p, suit, num + 1);
  else
    DrawCourt(p, suit, num);
  DrawIndex(p, suit, num);
  p.save();
  p.translate(kW, kH);
  p.rotate(180);
  DrawIndex(p, suit, num);
  p.restore();
}

// ---------------------------------------------------------------- backs

QColor WithAlpha(QColor c, int alpha) {
  c.setAlpha(alpha);
  return c;
}

void FillVertical(QPainter& p, const QRectF& r, std::initializer_list<std::pair<qreal, QColor>> stops) {
  QLinearGradient g(r.topLeft(), r.bottomLeft());
  for (const auto& [at, colour] : stops) g.setColorAt(at, colour);
  p.fillRect(r, g);
}

// Two families of slanted lines crossing at the centre, so the pattern is symmetric on the
// card; `slant` is the horizontal run per unit of height.
void Lattice(QPainter& p, const QRectF& r, qreal step, qreal slant, const QPen& pen) {
  p.setPen(pen);
  const QPointF c = r.center();
  const qreal run = r.height() / 2 * slant;
  const int n = int((r.width() / 2 + run) / step) + 1;
  for (int k = -n; k <= n; ++k) {
    const qreal x = c.x() + k * step;
    p.drawLine(QPointF(x - run, r.top()), QPointF(x + run, r.bottom()));
    p.drawLine(QPointF(x + run, r.top()), QPointF(x - run, r.bottom()));
  }
}

void Frame(QPainter& p, const QRectF& r, qreal inset, const QPen& pen, qreal radius = 30) {
  QPainterPath frame;
  frame.addRoundedRect(r.adjusted(inset, inset, -inset, -inset), radius, radius);
  p.strokePath(frame, pen);
}

QPainterPath Rosette(QPointF centre, qreal length, qreal width, int petals) {
  QPainterPath rosette;
  for (int i = 0; i < petals; ++i) {
    QPainterPath petal;
    petal.addEllipse(QPointF(0, -length / 2), width / 2, length / 2);
    rosette.addPath(QTransform().translate(centre.x(), centre.y()).rotate(360.0 * i / petals).map(petal));
  }
  rosette.setFillRule(Qt::WindingFill);
  return rosette;
}

void BackCrimson(QPainter& p, const QRectF& r) {
  FillVertical(p, r, {{0, QColor(186, 30, 44)}, {1, QColor(140, 18, 32)}});
  Lattice(p, r, 64, 1, QPen(QColor(235, 130, 130, 160), 6));
  Frame(p, r, 30, QPen(Qt::white, 10));
  Frame(p, r, 48, QPen(QColor(255, 255, 255, 170), 3), 20);
}

void BackRoyal(QPainter& p, const QRectF& r) {
  p.fillRect(r, QColor(26, 56, 138));
  Lattice(p, r, 44, 0.7, QPen(QColor(120, 160, 230, 120), 3));
  const QPointF c = r.center();
  p.setPen(QPen(Qt::white, 12));
  p.setBrush(QColor(240, 244, 252));
  p.drawEllipse(c, 250, 330);
  p.setPen(QPen(QColor(26, 56, 138), 5));
  p.setBrush(Qt::NoBrush);
  p.drawEllipse(c, 220, 300);
  p.fillPath(Rosette(c, 190, 70, 8), QColor(26, 56, 138));
  p.setBrush(QColor(240, 244, 252));
  p.drawEllipse(c, 36, 36);
  Frame(p, r, 28, QPen(Qt::white, 8));
}

void BackArgyle(QPainter& p, const QRectF& r) {
  p.fillRect(r, QColor(18, 98, 62));
  constexpr qreal w = 236, h = 330;
  const QPointF c = r.center();
  QPainterPath light;  // every other diamond of the tiling, the rest is the ground
  for (int i = -4; i <= 4; i += 2)
    for (int j = -4; j <= 4; j += 2) {
      const QPointF at(c.x() + i * w / 2, c.y() + j * h / 2);
      light.addPolygon(QPolygonF({at + QPointF(0, -h / 2), at + QPointF(w / 2, 0), at + QPointF(0, h / 2),
                                  at + QPointF(-w / 2, 0)}));
    }
  p.fillPath(light, QColor(34, 138, 88));
  QPen dash(QColor(240, 230, 180, 190), 4);
  dash.setDashPattern({4, 4});
  Lattice(p, r, w, w / h, dash);  // through the diamonds' centres, as on a knitted argyle
  Frame(p, r, 26, QPen(QColor(240, 230, 180), 8));
}

void BackBurgundy(QPainter& p, const QRectF& r) {
  p.fillRect(r, QColor(112, 22, 50));
  const QPointF c = r.center();
  const QColor gold(222, 180, 96);
  QPainterPath flowers, hearts;  // gathered, so the whole pattern is filled in two calls
  for (int j = -6; j <= 6; ++j)
    for (int i = -5; i <= 5; ++i) {
      const QPointF at(c.x() + i * 124 + (j % 2 ? 62 : 0), c.y() + j * 110);
      flowers.addPath(Rosette(at, 44, 22, 4));
      hearts.addPath(Rosette(at, 30, 12, 4));
    }
  flowers.setFillRule(Qt::WindingFill);
  hearts.setFillRule(Qt::WindingFill);
  p.fillPath(flowers, gold);
  p.fillPath(hearts, QColor(112, 22, 50));
  Frame(p, r, 24, QPen(gold, 10));
  Frame(p, r, 42, QPen(gold, 3), 18);
}

void BackWaves(QPainter& p, const QRectF& r) {
  FillVertical(p, r, {{0, QColor(16, 128, 148)}, {1, QColor(8, 66, 100)}});
  for (int row = 0; r.top() + row * 52 < r.bottom() + 52; ++row) {
    QPainterPath wave;
    const qreal y = r.top() + row * 52;
    const qreal phase = row % 2 ? 90 : 0;
    wave.moveTo(r.left() - 20, y);
    for (qreal x = r.left() - 20; x < r.right() + 40; x += 15)
      wave.lineTo(x, y + 16 * std::sin((x + phase) * 2 * M_PI / 180));
    p.strokePath(wave, QPen(QColor(255, 255, 255, row % 2 ? 90 : 150), 7));
  }
  Frame(p, r, 26, QPen(QColor(255, 255, 255, 220), 8));
}

void BackChecks(QPainter& p, const QRectF& r) {
  p.fillRect(r, QColor(252, 240, 220));
  constexpr qreal kStep = 96;
  const QColor stripe(226, 112, 30, 120);
  const QPointF c = r.center();
  for (int k = -8; k <= 8; ++k) {
    p.fillRect(QRectF(c.x() + k * kStep - kStep / 4, r.top(), kStep / 2, r.height()), stripe);
    p.fillRect(QRectF(r.left(), c.y() + k * kStep - kStep / 4, r.width(), kStep / 2), stripe);
  }
  Frame(p, r, 26, QPen(QColor(170, 70, 10), 10));
}

void AddStar(QPainterPath& path, QPointF c, qreal outer, qreal inner, int points) {
  QPolygonF star;
  for (int i = 0; i < points * 2; ++i) {
    const qreal a = M_PI * i / points - M_PI / 2;
    const qreal radius = i % 2 ? inner : outer;
    star << c + QPointF(radius * std::cos(a), radius * std::sin(a));
  }
  path.addPolygon(star);
  path.closeSubpath();
}

// Deck 7, the deck a new player sees first.
void BackIndigo(QPainter& p, const QRectF& r) {
  QRadialGradient glow(r.center(), r.height() * 0.6);
  glow.setColorAt(0, QColor(70, 74, 168));
  glow.setColorAt(1, QColor(30, 30, 92));
  p.fillRect(r, glow);
  const QColor gold(226, 186, 100);
  Lattice(p, r, 120, 0.72, QPen(WithAlpha(gold, 130), 4));
  const QPointF c = r.center();
  QPainterPath stars;
  for (int i = -8; i <= 8; ++i)
    for (int j = -8; j <= 8; ++j)
      if ((i + j) % 2 == 0) AddStar(stars, c + QPointF(i * 60, j * 60 / 0.72), 14, 5, 4);
  p.fillPath(stars, gold);
  p.setPen(QPen(gold, 10));
  p.setBrush(QColor(30, 30, 92));
  p.drawEllipse(c, 200, 200);
  p.setPen(QPen(gold, 3));
  p.drawEllipse(c, 178, 178);
  QPainterPath star;
  AddStar(star, c, 150, 36, 4);
  p.fillPath(star, gold);
  for (int suit = 0; suit < kSuits; ++suit) {
    const qreal a = M_PI / 4 + suit * M_PI / 2;
    DrawSuit(p, suit, c + QPointF(100 * std::cos(a), 100 * std::sin(a)), 54, gold);
  }
  Frame(p, r, 26, QPen(gold, 8));
}

void BackSunburst(QPainter& p, const QRectF& r) {
  p.fillRect(r, QColor(236, 140, 34));
  const QPointF c = r.center();
  QPainterPath rays;
  constexpr int kRays = 32;
  for (int i = 0; i < kRays; i += 2) {
    const qreal a0 = 2 * M_PI * i / kRays, a1 = 2 * M_PI * (i + 1) / kRays;
    rays.moveTo(c);
    rays.lineTo(c + QPointF(1200 * std::cos(a0), 1200 * std::sin(a0)));
    rays.lineTo(c + QPointF(1200 * std::cos(a1), 1200 * std::sin(a1)));
    rays.closeSubpath();
  }
  p.fillPath(rays, QColor(250, 196, 72));
  QRadialGradient sun(c, 190);
  sun.setColorAt(0, QColor(255, 244, 190));
  sun.setColorAt(1, QColor(250, 200, 80));
  p.setPen(QPen(QColor(200, 96, 20), 10));
  p.setBrush(sun);
  p.drawEllipse(c, 170, 170);
  Frame(p, r, 26, QPen(QColor(200, 96, 20), 10));
}

QPainterPath Ridge(const QRectF& r, std::initializer_list<QPointF> points) {
  // Points in fractions of the field; the shape is closed along the field's bottom.
  QPainterPath ridge;
  ridge.moveTo(r.left() - 10, r.bottom() + 10);
  for (const QPointF& f : points) ridge.lineTo(r.left() + f.x() * r.width(), r.top() + f.y() * r.height());
  ridge.lineTo(r.right() + 10, r.bottom() + 10);
  ridge.closeSubpath();
  return ridge;
}

void BackMountains(QPainter& p, const QRectF& r) {
  FillVertical(p, r, {{0, QColor(58, 64, 138)}, {0.45, QColor(226, 128, 116)}, {0.7, QColor(252, 206, 140)}});
  p.setPen(Qt::NoPen);
  p.setBrush(QColor(255, 236, 170));
  p.drawEllipse(QPointF(r.left() + 0.62 * r.width(), r.top() + 0.52 * r.height()), 120, 120);
  p.fillPath(Ridge(r, {{-0.05, 0.55}, {0.2, 0.36}, {0.35, 0.47}, {0.55, 0.3}, {0.8, 0.5}, {1.05, 0.42}}),
             QColor(130, 86, 138));
  p.fillPath(Ridge(r, {{-0.05, 0.7}, {0.25, 0.52}, {0.5, 0.66}, {0.75, 0.5}, {1.05, 0.68}}), QColor(88, 58, 112));
  p.fillPath(Ridge(r, {{-0.05, 0.8}, {0.3, 0.72}, {0.6, 0.84}, {0.85, 0.74}, {1.05, 0.8}}), QColor(44, 32, 70));
  Frame(p, r, 0, QPen(QColor(44, 32, 70), 8), 40);
}

void DrawSailboat(QPainter& p, QPointF base) {
  QPainterPath hull;
  hull.addPolygon(QPolygonF({base + QPointF(-90, 0), base + QPointF(90, 0), base + QPointF(60, 40),
                             base + QPointF(-60, 40)}));
  p.fillPath(hull, QColor(120, 70, 40));
  QPainterPath sails;
  sails.addPolygon(QPolygonF({base + QPointF(-6, -10), base + QPointF(-6, -250), base + QPointF(-90, -10)}));
  sails.addPolygon(QPolygonF({base + QPointF(6, -10), base + QPointF(6, -220), base + QPointF(80, -10)}));
  p.fillPath(sails, QColor(250, 250, 246));
}

void BackSeaside(QPainter& p, const QRectF& r) {
  FillVertical(p, r, {{0, QColor(96, 170, 230)}, {0.6, QColor(214, 236, 250)}});
  const qreal horizon = r.top() + 0.6 * r.height();
  p.setPen(Qt::NoPen);
  p.setBrush(QColor(255, 214, 90));
  p.drawEllipse(QPointF(r.left() + 0.72 * r.width(), r.top() + 0.2 * r.height()), 110, 110);
  FillVertical(p, QRectF(r.left(), horizon, r.width(), r.bottom() - horizon),
               {{0, QColor(34, 116, 176)}, {1, QColor(14, 62, 120)}});
  for (int row = 0; row < 8; ++row) {
    const qreal y = horizon + 50 + row * 62;
    QPainterPath wave;
    for (qreal x = r.left() + (row % 2) * 70; x < r.right(); x += 140) {
      wave.moveTo(x, y);
      wave.quadTo(x + 35, y - 18, x + 70, y);
    }
    p.strokePath(wave, QPen(QColor(255, 255, 255, 140), 6, Qt::SolidLine, Qt::RoundCap));
  }
  DrawSailboat(p, QPointF(r.left() + 0.35 * r.width(), horizon + 20));
  QPainterPath birds;
  for (QPointF b : {QPointF(0.3, 0.22), QPointF(0.4, 0.27), QPointF(0.24, 0.3)}) {
    const QPointF at(r.left() + b.x() * r.width(), r.top() + b.y() * r.height());
    birds.moveTo(at + QPointF(-30, -10));
    birds.quadTo(at + QPointF(-12, -18), at);
    birds.quadTo(at + QPointF(12, -18), at + QPointF(30, -10));
  }
  p.strokePath(birds, QPen(QColor(40, 60, 90), 6, Qt::SolidLine, Qt::RoundCap));
  Frame(p, r, 0, QPen(QColor(14, 62, 120), 8), 40);
}

void DrawPine(QPainter& p, QPointF foot, qreal height, const QColor& colour) {
  QPainterPath tree;
  const qreal w = height * 0.42;
  for (int tier = 0; tier < 3; ++tier) {
    const qreal top = foot.y() - height + tier * height * 0.22;
    const qreal base = top + height * 0.45;
    const qreal half = w / 2 * (0.6 + 0.2 * tier);
    tree.addPolygon(QPolygonF({QPointF(foot.x(), top), QPointF(foot.x() + half, base), QPointF(foot.x() - half, base)}));
  }
  tree.addRect(foot.x() - w * 0.06, foot.y() - height * 0.12, w * 0.12, height * 0.14);
  tree.setFillRule(Qt::WindingFill);
  p.fillPath(tree, colour);
}

void BackForest(QPainter& p, const QRectF& r) {
  FillVertical(p, r, {{0, QColor(196, 226, 236)}, {0.5, QColor(232, 240, 222)}});
  p.fillPath(Ridge(r, {{-0.05, 0.46}, {0.3, 0.38}, {0.65, 0.48}, {1.05, 0.4}}), QColor(150, 190, 150));
  p.fillPath(Ridge(r, {{-0.05, 0.62}, {0.4, 0.54}, {0.75, 0.6}, {1.05, 0.56}}), QColor(92, 150, 98));
  for (int i = 0; i < 6; ++i)
    DrawPine(p, QPointF(r.left() + (0.08 + 0.17 * i) * r.width(), r.top() + (0.62 + 0.03 * (i % 2)) * r.height()),
             190, QColor(56, 110, 70));
  p.fillPath(Ridge(r, {{-0.05, 0.8}, {0.5, 0.76}, {1.05, 0.82}}), QColor(34, 84, 52));
  for (int i = 0; i < 5; ++i)
    DrawPine(p, QPointF(r.left() + (0.02 + 0.24 * i) * r.width(), r.top() + 0.84 * r.height()), 380,
             QColor(20, 56, 36));
  Frame(p, r, 0, QPen(QColor(20, 56, 36), 8), 40);
}

void BackNight(QPainter& p, const QRectF& r) {
  FillVertical(p, r, {{0, QColor(8, 12, 40)}, {0.75, QColor(34, 52, 110)}});
  p.setPen(Qt::NoPen);
  p.setBrush(QColor(255, 250, 220));
  unsigned seed = 7;  // a fixed sky: the same stars every time the deck is drawn
  for (int i = 0; i < 70; ++i) {
    seed = seed * 1103515245u + 12345u;
    const qreal x = r.left() + (seed >> 8) % 1000 / 1000.0 * r.width();
    seed = seed * 1103515245u + 12345u;
    const qreal y = r.top() + (seed >> 8) % 1000 / 1000.0 * r.height() * 0.7;
    p.drawEllipse(QPointF(x, y), 4 + i % 3 * 2, 4 + i % 3 * 2);
  }
  QPainterPath moon;
  const QPointF m(r.left() + 0.3 * r.width(), r.top() + 0.22 * r.height());
  moon.addEllipse(m, 110, 110);
  QPainterPath bite;
  bite.addEllipse(m + QPointF(50, -30), 100, 100);
  p.fillPath(moon.subtracted(bite), QColor(250, 240, 200));
  p.fillPath(Ridge(r, {{-0.05, 0.72}, {0.3, 0.62}, {0.55, 0.7}, {0.8, 0.6}, {1.05, 0.66}}), QColor(22, 34, 66));
  p.fillPath(Ridge(r, {{-0.05, 0.86}, {0.4, 0.78}, {1.05, 0.88}}), QColor(10, 16, 34));
  p.fillRect(QRectF(r.left() + 0.68 * r.width(), r.top() + 0.8 * r.height(), 26, 30), QColor(255, 210, 110));
  Frame(p, r, 0, QPen(QColor(10, 16, 34), 8), 40);
}

using BackDesign = void (*)(QPainter&, const QRectF&);
constexpr std::array<BackDesign, kDecks> kBackDesigns{
    BackCrimson, BackRoyal,  BackArgyle,    BackBurgundy,  // Classic
    BackWaves,   BackChecks, BackIndigo,    BackSunburst,  // Patterns
    BackMountains, BackSeaside, BackForest, BackNight,     // Landscapes
};

void DrawCardBack(QPainter& p, int deck, qreal px) {
  DrawBlankCard(p, px);
  const QRectF field = kCard.adjusted(60, 60, -60, -60);
  p.save();
  p.setClipRect(field);
  kBackDesigns[deck - 1](p, field);
  p.restore();
  WhiteOutside(p, field, 40);
}

// ---------------------------------------------------------------- pile markers

// Markers lie on the table: a light wash over whatever green is under them.
const QColor kMarkerWash(255, 255, 255, 30);
const QColor kMarkerLine(255, 255, 255, 120);
const QColor kMarkerGlyph(255, 255, 255, 150);

// A squared-up pile: the cards behind show only where the one in front leaves room.
void DrawStockGlyph(QPainter& p) {
  QPainterPath covered;
  QPainterPathStroker stroker;
  stroker.setWidth(20);
  stroker.setJoinStyle(Qt::RoundJoin);
  for (int i = 0; i < 3; ++i) {
    QPainterPath card;
    card.addRoundedRect(QRectF(300 + i * 70, 430 + i * 70, 320, 440), 34, 34);
    if (i == 0) p.fillPath(card, kMarkerWash);
    p.fillPath(stroker.createStroke(card).subtracted(covered), kMarkerGlyph);
    covered = covered.united(card);
  }
}

void DrawMarker(QPainter& p, int n, qreal px) {
  const qreal line = std::max<qreal>(1.5 * px, 14);
  QPainterPath place;
  place.addRoundedRect(kCard.adjusted(line, line, -line, -line), kCorner, kCorner);
  p.fillPath(place, kMarkerWash);
  p.strokePath(place, QPen(kMarkerLine, line));
  if (n < kRanks) {
    DrawGlyph(p, RankGlyph(n), QRectF(232, 530, 600, 380), kMarkerGlyph);
  } else if (n == kFoundationMarker) {
    p.setPen(QPen(kMarkerGlyph, 22));
    p.setBrush(Qt::NoBrush);
    p.drawEllipse(kMiddle, 330, 330);
    p.drawEllipse(kMiddle, 290, 290);
    DrawGlyph(p, RankGlyph(0), QRectF(332, 590, 400, 260), kMarkerGlyph);
  } else if (n == kStockMarker) {
    DrawStockGlyph(p);
  }
}

}  // namespace

QPixmap CardPainter::Paint(const Picture& picture, QSize size, qreal dpr) {
  if (!(dpr > 0) || dpr > 16) dpr = 1;  // no screen has such a ratio; also turns away NaN
  constexpr int kLargest = 16384;
  if (size.isEmpty() || size.width() * dpr > kLargest || size.height() * dpr > kLargest) return {};
  QPixmap pixmap(qRound(size.width() * dpr), qRound(size.height() * dpr));
  pixmap.setDevicePixelRatio(dpr);
  pixmap.fill(Qt::transparent);
  QPainter p(&pixmap);
  p.setRenderHint(QPainter::Antialiasing);
  p.scale(size.width() / kW, size.height() / kH);
  const qreal px = kW / size.width();
  const int n = picture.number;
  if (picture.kind == Picture::Face && n >= 1 && n <= kSuits * kRanks)
    DrawCardFace(p, n, px);
  else if (picture.kind == Picture::Back && n >= 1 && n <= kDecks)
    DrawCardBack(p, n, px);
  else if (picture.kind == Picture::Marker && n >= 0 && n < kMarkers)
    DrawMarker(p, n, px);
  return pixmap;
}

}  // namespace qv
