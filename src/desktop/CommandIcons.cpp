// The toolbar and menu icons: drawn in code as one set, with the same line, palette and
// badge for every command.
#include <QHash>
#include <QPainter>
#include <QPainterPath>
#include <QtMath>

#include <cmath>

#include "CardPainter.h"

namespace qv {

namespace {

// Every icon is drawn on a 24-unit grid and scaled, so the three sizes share one drawing.
constexpr qreal kGrid = 24;
constexpr qreal kStroke = 1.7;

const QColor kInk(50, 62, 82);
const QColor kBlue(36, 116, 206);
const QColor kGreen(34, 156, 84);
const QColor kRed(214, 66, 56);
const QColor kGold(238, 172, 40);
const QColor kPaper(255, 255, 255);
const QColor kPale(214, 230, 248);

QPen Line(const QColor& colour = kInk, qreal width = kStroke) {
  return QPen(colour, width, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin);
}

void Shape(QPainter& p, const QPainterPath& path, const QColor& fill, const QColor& line = kInk) {
  p.fillPath(path, fill);
  p.strokePath(path, Line(line));
}

void Stroke(QPainter& p, const QPainterPath& path, const QColor& colour = kInk, qreal width = kStroke) {
  p.strokePath(path, Line(colour, width));
}

QPainterPath Rounded(const QRectF& r, qreal radius) {
  QPainterPath path;
  path.addRoundedRect(r, radius, radius);
  return path;
}

QPainterPath Circle(QPointF c, qreal r) {
  QPainterPath path;
  path.addEllipse(c, r, r);
  return path;
}

QPainterPath Polygon(std::initializer_list<QPointF> points, bool closed = true) {
  QPainterPath path;
  path.addPolygon(QPolygonF(points));
  if (closed) path.closeSubpath();
  return path;
}

// ---------------------------------------------------------------- shared pieces

void Card(QPainter& p, const QRectF& r = QRectF(4.5, 2.5, 13, 18)) { Shape(p, Rounded(r, 2), kPaper); }

QPainterPath SheetOutline(const QRectF& r) {
  const qreal fold = 4.5;
  QPainterPath sheet;
  sheet.moveTo(r.topLeft());
  sheet.lineTo(r.right() - fold, r.top());
  sheet.lineTo(r.right(), r.top() + fold);
  sheet.lineTo(r.bottomRight());
  sheet.lineTo(r.bottomLeft());
  sheet.closeSubpath();
  return sheet;
}

void Sheet(QPainter& p, const QRectF& r = QRectF(5, 2.5, 14, 19), bool lines = false) {
  Shape(p, SheetOutline(r), kPaper);
  Stroke(p, Polygon({QPointF(r.right() - 4.5, r.top()), QPointF(r.right() - 4.5, r.top() + 4.5),
                     QPointF(r.right(), r.top() + 4.5)}, false));
  if (!lines) return;
  QPainterPath text;
  for (qreal y = r.top() + 8; y < r.bottom() - 2; y += 3.5) {
    text.moveTo(r.left() + 3, y);
    text.lineTo(r.right() - 3, y);
  }
  Stroke(p, text, kInk, 1.2);
}

QPainterPath FolderBack() {
  QPainterPath back;
  back.moveTo(2.5, 19.5);
  back.lineTo(2.5, 5.5);
  back.quadTo(2.5, 4.5, 3.5, 4.5);
  back.lineTo(8.5, 4.5);
  back.lineTo(10.5, 7);
  back.lineTo(20.5, 7);
  back.quadTo(21.5, 7, 21.5, 8);
  back.lineTo(21.5, 19.5);
  back.closeSubpath();
  return back;
}

void Folder(QPainter& p, bool open) {
  Shape(p, FolderBack(), kGold.darker(112));
  if (open)
    Shape(p, Polygon({QPointF(2.5, 19.5), QPointF(6, 10.5), QPointF(23, 10.5), QPointF(19.5, 19.5)}), kGold);
  else
    Shape(p, Rounded(QRectF(2.5, 9.5, 19, 10), 1), kGold);
}

// A small round badge at the lower right, set off by a white ring, that says what is done
// to the main picture: add, organise, go.
enum class Badge { Plus, List, Arrow, Cycle, Clock, Check };

void DrawBadge(QPainter& p, Badge kind, const QColor& colour) {
  const QPointF c(17.5, 17.5);
  p.fillPath(Circle(c, 6.3), kPaper);
  p.fillPath(Circle(c, 5.3), colour);
  QPainterPath mark;
  switch (kind) {
    case Badge::Plus:
      mark.moveTo(c.x() - 3, c.y());
      mark.lineTo(c.x() + 3, c.y());
      mark.moveTo(c.x(), c.y() - 3);
      mark.lineTo(c.x(), c.y() + 3);
      break;
    case Badge::List:
      for (qreal dy : {-2.3, 0.0, 2.3}) {
        mark.moveTo(c.x() - 2.8, c.y() + dy);
        mark.lineTo(c.x() + 2.8, c.y() + dy);
      }
      break;
    case Badge::Arrow:
      mark.moveTo(c.x() - 3, c.y());
      mark.lineTo(c.x() + 2.6, c.y());
      mark.moveTo(c.x() + 0.2, c.y() - 2.4);
      mark.lineTo(c.x() + 2.8, c.y());
      mark.lineTo(c.x() + 0.2, c.y() + 2.4);
      break;
    case Badge::Cycle:
      mark.arcMoveTo(QRectF(c.x() - 2.8, c.y() - 2.8, 5.6, 5.6), 100);
      mark.arcTo(QRectF(c.x() - 2.8, c.y() - 2.8, 5.6, 5.6), 100, 280);
      mark.moveTo(c.x() + 2.9, c.y() - 2.9);
      mark.lineTo(c.x() + 2.6, c.y() - 0.4);
      mark.lineTo(c.x() + 0.2, c.y() - 0.9);
      break;
    case Badge::Check:
      mark.moveTo(c.x() - 2.8, c.y() + 0.2);
      mark.lineTo(c.x() - 0.7, c.y() + 2.4);
      mark.lineTo(c.x() + 3, c.y() - 2.4);
      break;
    case Badge::Clock:
      mark.moveTo(c.x(), c.y() - 3.2);
      mark.lineTo(c.x(), c.y());
      mark.lineTo(c.x() + 2.4, c.y() + 1.4);
      break;
  }
  Stroke(p, mark, kPaper, 1.4);
}

QPainterPath StarPath(QPointF c, qreal outer, qreal inner) {
  QPolygonF star;
  for (int i = 0; i < 10; ++i) {
    const qreal a = M_PI * i / 5 - M_PI / 2;
    const qreal r = i % 2 ? inner : outer;
    star << c + QPointF(r * std::cos(a), r * std::sin(a));
  }
  QPainterPath path;
  path.addPolygon(star);
  path.closeSubpath();
  return path;
}

void Hourglass(QPainter& p) {
  Shape(p, Polygon({QPointF(5.5, 3), QPointF(16.5, 3), QPointF(11, 11.5), QPointF(16.5, 20), QPointF(5.5, 20),
                    QPointF(11, 11.5)}),
        kPale);
  p.fillPath(Polygon({QPointF(8, 18.6), QPointF(14, 18.6), QPointF(11, 14.5)}), kGold);
  Stroke(p, Polygon({QPointF(4, 3), QPointF(18, 3)}, false));
  Stroke(p, Polygon({QPointF(4, 20), QPointF(18, 20)}, false));
}

void Floppy(QPainter& p) {
  QPainterPath body;
  body.moveTo(3.5, 3.5);
  body.lineTo(17, 3.5);
  body.lineTo(20.5, 7);
  body.lineTo(20.5, 20.5);
  body.lineTo(3.5, 20.5);
  body.closeSubpath();
  Shape(p, body, kBlue);
  Shape(p, Rounded(QRectF(7, 3.5, 9, 5.5), 0.5), kPale);
  Shape(p, Rounded(QRectF(6.5, 12.5, 11, 8), 0.5), kPaper);
}

// A hooked arrow for undo; `twice` adds a second head for "all the way".
void HookArrow(QPainter& p, bool twice) {
  QPainterPath hook;
  hook.moveTo(19.5, 19);
  hook.cubicTo(19.5, 12.5, 16, 9.5, 11, 9.5);
  hook.lineTo(5, 9.5);
  Stroke(p, hook, kBlue, 2.0);
  Stroke(p, Polygon({QPointF(9, 5.5), QPointF(5, 9.5), QPointF(9, 13.5)}, false), kBlue, 2.0);
  if (twice) Stroke(p, Polygon({QPointF(5.5, 5.5), QPointF(1.5, 9.5), QPointF(5.5, 13.5)}, false), kBlue, 2.0);
}

void Mirrored(QPainter& p, void (*draw)(QPainter&, bool), bool twice) {
  p.save();
  p.translate(kGrid, 0);
  p.scale(-1, 1);
  draw(p, twice);
  p.restore();
}

void CircleArrow(QPainter& p, QPointF c, qreal r, const QColor& colour) {
  const QRectF box(c.x() - r, c.y() - r, 2 * r, 2 * r);
  QPainterPath arc;
  arc.arcMoveTo(box, 120);
  arc.arcTo(box, 120, 270);
  Stroke(p, arc, colour, 2.0);
  const qreal a = qDegreesToRadians(120.0);
  const QPointF tip(c.x() + r * std::cos(a), c.y() - r * std::sin(a));
  Stroke(p, Polygon({tip + QPointF(-4, -1.2), tip, tip + QPointF(-0.8, 4)}, false), colour, 2.0);
}

void ClockFace(QPainter& p, QPointF c, qreal r) {
  Shape(p, Circle(c, r), kPaper);
  Stroke(p, Polygon({c + QPointF(0, -r * 0.6), c, c + QPointF(r * 0.45, r * 0.3)}, false));
}

QPainterPath QuestionMark(QPointF c, qreal s) {
  QPainterPath q;
  q.moveTo(c + QPointF(-2.6, -2.2) * s);
  q.cubicTo(c + QPointF(-2.6, -5.6) * s, c + QPointF(2.8, -5.6) * s, c + QPointF(2.8, -2.4) * s);
  q.cubicTo(c + QPointF(2.8, -0.4) * s, c + QPointF(0, 0) * s, c + QPointF(0, 2) * s);
  return q;
}

// ---------------------------------------------------------------- the icons

void IconNew(QPainter& p) {
  Card(p);
  DrawBadge(p, Badge::Plus, kGreen);
}

void IconSelect(QPainter& p) {
  Card(p, QRectF(5, 2.5, 14, 19));
  QPainterPath hash;
  hash.moveTo(10.5, 7);
  hash.lineTo(9.5, 17);
  hash.moveTo(14.5, 7);
  hash.lineTo(13.5, 17);
  hash.moveTo(8, 10);
  hash.lineTo(16.5, 10);
  hash.moveTo(7.5, 14);
  hash.lineTo(16, 14);
  Stroke(p, hash, kBlue, 1.6);
}

void IconRestart(QPainter& p) {
  Card(p, QRectF(8, 7.5, 8.5, 11.5));
  CircleArrow(p, QPointF(12, 12.5), 9, kBlue);
}

void IconOpen(QPainter& p) { Folder(p, true); }
void IconSave(QPainter& p) { Floppy(p); }
void IconUndo(QPainter& p) { HookArrow(p, false); }
void IconUndoAll(QPainter& p) { HookArrow(p, true); }
void IconRedo(QPainter& p) { Mirrored(p, HookArrow, false); }
void IconRedoAll(QPainter& p) { Mirrored(p, HookArrow, true); }

void IconAutoPlay(QPainter& p) {
  p.fillPath(Circle(QPointF(12, 12), 9.5), kGreen);
  p.fillPath(Polygon({QPointF(9.5, 7), QPointF(17, 12), QPointF(9.5, 17)}), kPaper);
}

void IconPause(QPainter& p) {
  Shape(p, Rounded(QRectF(6, 4.5, 4, 15), 1), kBlue, kBlue);
  Shape(p, Rounded(QRectF(14, 4.5, 4, 15), 1), kBlue, kBlue);
}

void IconBack(QPainter& p) {
  Shape(p, Polygon({QPointF(18.5, 5), QPointF(8.5, 12), QPointF(18.5, 19)}), kBlue, kBlue);
  Stroke(p, Polygon({QPointF(5.5, 5), QPointF(5.5, 19)}, false), kBlue, 2.6);
}

void IconStop(QPainter& p) { Shape(p, Rounded(QRectF(5.5, 5.5, 13, 13), 2), kRed, kRed); }

void IconForward(QPainter& p) {
  p.save();
  p.translate(kGrid, 0);
  p.scale(-1, 1);
  IconBack(p);
  p.restore();
}

void IconMovesMan(QPainter& p) {
  Sheet(p, QRectF(3.5, 2.5, 14, 19), true);
  DrawBadge(p, Badge::Arrow, kBlue);
}

void Star(QPainter& p) { Shape(p, StarPath(QPointF(11, 11), 9, 4), kGold, kGold.darker(140)); }

void IconAddFav(QPainter& p) {
  Star(p);
  DrawBadge(p, Badge::Plus, kGreen);
}

void IconOrgFav(QPainter& p) {
  Star(p);
  DrawBadge(p, Badge::List, kBlue);
}

void IconAddPend(QPainter& p) {
  Hourglass(p);
  DrawBadge(p, Badge::Plus, kGreen);
}

void IconOrgPend(QPainter& p) {
  Hourglass(p);
  DrawBadge(p, Badge::List, kBlue);
}

void IconHighScore(QPainter& p) {
  QPainterPath handles;
  handles.moveTo(7, 6.5);
  handles.cubicTo(2.5, 6.5, 3, 12, 8, 12);
  handles.moveTo(17, 6.5);
  handles.cubicTo(21.5, 6.5, 21, 12, 16, 12);
  Stroke(p, handles);
  QPainterPath cup;
  cup.moveTo(6.5, 3.5);
  cup.lineTo(17.5, 3.5);
  cup.cubicTo(17.5, 11, 15, 14, 12, 14);
  cup.cubicTo(9, 14, 6.5, 11, 6.5, 3.5);
  Shape(p, cup, kGold);
  Shape(p, Polygon({QPointF(10.5, 14), QPointF(13.5, 14), QPointF(14, 17.5), QPointF(10, 17.5)}), kGold);
  Shape(p, Rounded(QRectF(7, 17.5, 10, 3.5), 0.8), kInk);
}

void IconGameStat(QPainter& p) {
  Shape(p, Rounded(QRectF(4.5, 12, 4, 8), 0.6), kBlue);
  Shape(p, Rounded(QRectF(10, 5, 4, 15), 0.6), kGreen);
  Shape(p, Rounded(QRectF(15.5, 9, 4, 11), 0.6), kGold);
  Stroke(p, Polygon({QPointF(2.5, 20.5), QPointF(21.5, 20.5)}, false));
}

void IconSounds(QPainter& p) {
  Shape(p, Polygon({QPointF(3, 9), QPointF(7, 9), QPointF(12, 4.5), QPointF(12, 19.5), QPointF(7, 15),
                    QPointF(3, 15)}),
        kInk);
  QPainterPath waves;
  waves.arcMoveTo(QRectF(9, 7.5, 9, 9), -45);
  waves.arcTo(QRectF(9, 7.5, 9, 9), -45, 90);
  waves.arcMoveTo(QRectF(7.5, 3.5, 15, 17), -50);
  waves.arcTo(QRectF(7.5, 3.5, 15, 17), -50, 100);
  Stroke(p, waves, kBlue);
}

void IconBackground(QPainter& p) {
  Shape(p, Rounded(QRectF(2.5, 4.5, 19, 15), 1.5), QColor(190, 222, 246));
  p.fillPath(Circle(QPointF(16.5, 9), 2), kGold);
  p.fillPath(Polygon({QPointF(3.3, 18.7), QPointF(9, 10.5), QPointF(13, 15.5), QPointF(15.5, 13),
                      QPointF(20.7, 18.7)}),
             kGreen);
  Stroke(p, Rounded(QRectF(2.5, 4.5, 19, 15), 1.5));
}

void Person(QPainter& p, QPointF head, qreal scale, const QColor& colour) {
  Shape(p, Circle(head, 3.2 * scale), colour);
  QPainterPath body;
  body.moveTo(head + QPointF(-6, 12.5) * scale);
  body.cubicTo(head + QPointF(-6, 5.5) * scale, head + QPointF(6, 5.5) * scale, head + QPointF(6, 12.5) * scale);
  body.closeSubpath();
  Shape(p, body, colour);
}

void IconPlayers(QPainter& p) {
  Person(p, QPointF(15.5, 6.5), 0.9, kPale);
  Person(p, QPointF(9, 8), 1.0, kBlue);
}

void IconAutoSave(QPainter& p) {
  Floppy(p);
  DrawBadge(p, Badge::Cycle, kGreen);
}

void IconHot(QPainter& p) {
  QPainterPath flame;
  flame.moveTo(12, 21);
  flame.cubicTo(6.5, 21, 4.5, 17, 5.5, 13.5);
  flame.cubicTo(6.5, 10, 9.5, 9, 9.5, 3);
  flame.cubicTo(13, 5, 15.5, 8.5, 15, 12);
  flame.cubicTo(16.5, 11, 17, 9.5, 17, 8.5);
  flame.cubicTo(19.5, 12, 19.5, 16, 18, 18.5);
  flame.cubicTo(16.8, 20.2, 14.5, 21, 12, 21);
  Shape(p, flame, kRed, kRed.darker(130));
  QPainterPath core;
  core.moveTo(12, 20);
  core.cubicTo(9.5, 20, 8.5, 18, 9.5, 16);
  core.cubicTo(10.5, 14.5, 12, 14, 12, 11.5);
  core.cubicTo(14.5, 13, 15.5, 15.5, 14.8, 17.5);
  core.cubicTo(14.3, 19.2, 13.2, 20, 12, 20);
  p.fillPath(core, kGold);
}

void IconHistory(QPainter& p) {
  ClockFace(p, QPointF(12, 12.5), 6);
  CircleArrow(p, QPointF(12, 12.5), 9.5, kBlue);
}

void IconOptions(QPainter& p) {
  QPainterPath gear;
  constexpr int kTeeth = 8;
  for (int i = 0; i < kTeeth * 2; ++i) {
    const qreal a0 = M_PI * i / kTeeth, a1 = M_PI * (i + 1) / kTeeth;
    const qreal r = i % 2 ? 7 : 9.5;
    const QPointF from(12 + r * std::cos(a0 + 0.08), 12 + r * std::sin(a0 + 0.08));
    const QPointF to(12 + r * std::cos(a1 - 0.08), 12 + r * std::sin(a1 - 0.08));
    if (i == 0) gear.moveTo(from); else gear.lineTo(from);
    gear.lineTo(to);
  }
  gear.closeSubpath();
  gear.addEllipse(QPointF(12, 12), 3, 3);
  Shape(p, gear, QColor(150, 164, 184));
}

void IconRules(QPainter& p) {
  QPainterPath left, right;
  left.moveTo(12, 6);
  left.cubicTo(9, 4, 5, 4, 2.5, 5);
  left.lineTo(2.5, 19);
  left.cubicTo(5, 18, 9, 18, 12, 20);
  left.closeSubpath();
  right = QTransform(-1, 0, 0, 1, kGrid, 0).map(left);
  Shape(p, left, kPaper, kBlue);
  Shape(p, right, kPaper, kBlue);
  QPainterPath text;
  for (qreal y : {9.0, 12.0, 15.0}) {
    text.moveTo(5, y - 0.5);
    text.lineTo(9.5, y);
    text.moveTo(19, y - 0.5);
    text.lineTo(14.5, y);
  }
  Stroke(p, text, kInk, 1.1);
}

void IconContents(QPainter& p) {
  p.fillPath(Circle(QPointF(12, 12), 9.5), kBlue);
  Stroke(p, QuestionMark(QPointF(12, 12), 1.0), kPaper, 2.2);
  p.fillPath(Circle(QPointF(12, 16.3), 1.3), kPaper);
}

void IconRecent(QPainter& p) {
  Sheet(p, QRectF(3.5, 2.5, 14, 19), true);
  DrawBadge(p, Badge::Clock, kBlue);
}

void IconToolbar(QPainter& p) {
  Shape(p, Rounded(QRectF(2.5, 3.5, 19, 17), 1.5), kPaper);
  p.fillPath(Rounded(QRectF(3.3, 4.3, 17.4, 5.2), 0.8), kPale);
  Stroke(p, Polygon({QPointF(2.5, 9.5), QPointF(21.5, 9.5)}, false));
  for (qreal x : {5.0, 9.5, 14.0}) p.fillPath(Rounded(QRectF(x, 5.4, 3, 3), 0.5), kBlue);
}

void Sparkle(QPainter& p, QPointF c, qreal r) {
  QPainterPath s;
  s.moveTo(c + QPointF(0, -r));
  s.quadTo(c, c + QPointF(r, 0));
  s.quadTo(c, c + QPointF(0, r));
  s.quadTo(c, c + QPointF(-r, 0));
  s.quadTo(c, c + QPointF(0, -r));
  p.fillPath(s, kGold);
}

void IconWizard(QPainter& p) {
  Stroke(p, Polygon({QPointF(4, 20), QPointF(15, 9)}, false), kInk, 3.2);
  Stroke(p, Polygon({QPointF(13.3, 10.7), QPointF(15, 9)}, false), kPaper, 1.6);
  Sparkle(p, QPointF(17.5, 5.5), 4);
  Sparkle(p, QPointF(8.5, 5), 2.5);
  Sparkle(p, QPointF(19.5, 14), 2.5);
}

void IconEditor(QPainter& p) {
  p.save();
  p.translate(12, 12);
  p.rotate(45);
  Shape(p, Rounded(QRectF(-2.8, -10, 5.6, 4), 0.8), kPale);
  Shape(p, QPainterPath(Rounded(QRectF(-2.8, -6, 5.6, 11.5), 0)), kGold);
  Shape(p, Polygon({QPointF(-2.8, 5.5), QPointF(2.8, 5.5), QPointF(0, 10.5)}), QColor(240, 214, 170));
  p.fillPath(Polygon({QPointF(-1, 8.6), QPointF(1, 8.6), QPointF(0, 10.5)}), kInk);
  p.restore();
}

void IconFolder(QPainter& p) { Folder(p, false); }
void IconFile(QPainter& p) { Sheet(p); }

void IconQuestion(QPainter& p) {
  QPainterPath bubble;
  bubble.addRoundedRect(QRectF(2.5, 3, 19, 14), 4, 4);
  bubble.moveTo(7, 16.5);
  bubble.lineTo(6, 21.5);
  bubble.lineTo(12, 16.5);
  bubble = bubble.simplified();
  Shape(p, bubble, kPale, kBlue);
  Stroke(p, QuestionMark(QPointF(12, 10.5), 0.75), kBlue, 2.0);
  p.fillPath(Circle(QPointF(12, 13.8), 1.1), kBlue);
}

// A light bulb: a thought about the next move.
void IconHint(QPainter& p) {
  Shape(p, Circle(QPointF(12, 9.5), 6.5), kGold);
  Shape(p, Rounded(QRectF(9, 15.5, 6, 5), 1), kPale);
  Stroke(p, Polygon({QPointF(9, 18), QPointF(15, 18)}, false));
  Stroke(p, Polygon({QPointF(12, 15.5), QPointF(12, 11), QPointF(10, 9)}, false), kPaper, 1.2);
}

// A deal that a search has proved can be won, and the way back to the last such table.
void IconNewWinnable(QPainter& p) {
  Card(p);
  DrawBadge(p, Badge::Check, kGreen);
}

void IconBackToWinnable(QPainter& p) {
  HookArrow(p, false);
  DrawBadge(p, Badge::Check, kGreen);
}

using IconDrawing = void (*)(QPainter&);

const QHash<QString, IconDrawing>& Drawings() {
  static const QHash<QString, IconDrawing> drawings{
      {"New", IconNew},           {"Select", IconSelect},     {"Restart", IconRestart},
      {"Open", IconOpen},         {"Save", IconSave},         {"UndoAll", IconUndoAll},
      {"Undo", IconUndo},         {"Redo", IconRedo},         {"RedoAll", IconRedoAll},
      {"AutoPlay", IconAutoPlay}, {"Pause", IconPause},       {"Back", IconBack},
      {"Stop", IconStop},         {"Forward", IconForward},   {"MovesMan", IconMovesMan},
      {"AddFav", IconAddFav},     {"OrgFav", IconOrgFav},     {"AddPend", IconAddPend},
      {"OrgPend", IconOrgPend},   {"HighScore", IconHighScore}, {"GameStat", IconGameStat},
      {"Sounds", IconSounds},     {"Background", IconBackground}, {"Players", IconPlayers},
      {"AutoSave", IconAutoSave}, {"Hot", IconHot},           {"History", IconHistory},
      {"Options", IconOptions},   {"Rules", IconRules},       {"Contents", IconContents},
      {"Recent", IconRecent},     {"Toolbar", IconToolbar},   {"Wizard", IconWizard},
      {"Editor", IconEditor},     {"FOLDER", IconFolder},     {"FILE", IconFile},
      {"Q1", IconQuestion},       {"Hint", IconHint},         {"NewWinnable", IconNewWinnable},
      {"BackToWinnable", IconBackToWinnable},
  };
  return drawings;
}

QPixmap Render(IconDrawing draw, int size) {
  QPixmap pixmap(size, size);
  pixmap.fill(Qt::transparent);
  QPainter p(&pixmap);
  p.setRenderHint(QPainter::Antialiasing);
  p.scale(size / kGrid, size / kGrid);
  draw(p);
  return pixmap;
}

}  // namespace

QIcon CommandIcon(const QString& key) {
  const auto found = Drawings().constFind(key);
  if (found == Drawings().constEnd()) return {};
  static QHash<QString, QIcon> made;  // drawn once; toolbar and menu share the icon
  QIcon& icon = made[key];
  if (icon.isNull())
    for (int size : {16, 24, 32}) icon.addPixmap(Render(found.value(), size));
  return icon;
}

}  // namespace qv
