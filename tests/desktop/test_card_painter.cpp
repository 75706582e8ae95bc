// The painted pictures: right size, every card and deck told apart, red and black kept apart.
#include <QIcon>
#include <QImage>
#include <QtTest>

#include <cmath>

#include "CardPainter.h"
#include "session/CommandTable.h"

using qv::CardPainter;
using qv::Picture;

namespace {

QImage Paint(Picture::Kind kind, int number, QSize size = {45, 61}, qreal dpr = 1) {
  return CardPainter::Paint({kind, static_cast<int16_t>(number)}, size, dpr).toImage().convertToFormat(
      QImage::Format_ARGB32);
}

// The first two pictures that look the same, or an empty string.
QString FirstTwins(const QList<QImage>& images, const QString& what) {
  for (int i = 0; i < images.size(); ++i)
    for (int j = i + 1; j < images.size(); ++j)
      if (images[i] == images[j]) return QString("%1 %2 and %3 look the same").arg(what).arg(i).arg(j);
  return {};
}

bool IsClearlyRed(QRgb c) { return qAlpha(c) > 200 && qRed(c) > 150 && qRed(c) > 2 * qGreen(c) && qRed(c) > 2 * qBlue(c); }

// How many pixels of the image pass the test.
int Pixels(const QImage& image, bool (*test)(QRgb)) {
  int count = 0;
  for (int y = 0; y < image.height(); ++y)
    for (int x = 0; x < image.width(); ++x) count += test(image.pixel(x, y));
  return count;
}

bool IsBlank(const QImage& image) { return Pixels(image, [](QRgb c) { return qAlpha(c) != 0; }) == 0; }

}  // namespace

class TestCardPainter : public QObject {
  Q_OBJECT

 private slots:
  void sizeAndRatioAreHonoured() {
    struct Case { Picture::Kind kind; QSize size; qreal dpr; QSize pixels; };
    for (const Case& c : {Case{Picture::Face, {150, 203}, 2.0, {300, 406}}, Case{Picture::Back, {110, 149}, 1.5, {165, 224}},
                          Case{Picture::Marker, {71, 96}, 1.25, {89, 120}}}) {
      const QPixmap pixmap = CardPainter::Paint({c.kind, 1}, c.size, c.dpr);
      QCOMPARE(pixmap.size(), c.pixels);
      QCOMPARE(pixmap.devicePixelRatio(), c.dpr);
      const QImage image = pixmap.toImage();
      QCOMPARE(qAlpha(image.pixel(0, 0)), 0);  // rounded corner
      QVERIFY(qAlpha(image.pixel(c.pixels.width() / 2, c.pixels.height() / 2)) > 0);
    }
  }

  void badPicturesPaintNothingAndDoNotCrash() {
    for (auto [kind, number] : {std::pair{Picture::Face, 0}, {Picture::Face, 53}, {Picture::Face, -1},
                                {Picture::Back, 0}, {Picture::Back, 13}, {Picture::Marker, -1},
                                {Picture::Marker, 16}, {Picture::None, 1}}) {
      const QImage image = Paint(kind, number);
      QCOMPARE(image.size(), QSize(45, 61));
      QVERIFY2(IsBlank(image), qPrintable(QString::fromStdString(Picture{kind, int16_t(number)}.Name())));
    }
    QVERIFY(CardPainter::Paint({Picture::Face, 1}, QSize(0, 61), 1).isNull());
    QCOMPARE(CardPainter::Paint({Picture::Face, 1}, QSize(45, 61), std::nan("")).size(), QSize(45, 61));
  }

  // On a pile only the top strip of a covered card shows: it alone must tell the card, and
  // its colour: red suits red, black suits without a trace of red.
  void everyFaceIsToldApartInTheVisibleStrip() {
    QList<QImage> strips;
    for (int n = 1; n <= 52; ++n) {
      const QImage face = Paint(Picture::Face, n, {110, 149});
      strips << face.copy(0, 0, 110, 149 * 250 / 1440);
      if ((n - 1) / 13 % 2 == 1) QVERIFY2(Pixels(strips.last(), IsClearlyRed) > 20, qPrintable(QString("face %1").arg(n)));
      else QVERIFY2(Pixels(face, IsClearlyRed) == 0, qPrintable(QString("face %1 has red ink").arg(n)));
    }
    const QString twins = FirstTwins(strips, "face strips");
    QVERIFY2(twins.isEmpty(), qPrintable(twins));
  }

  void decksAndMarkersAreAllDifferent() {
    QList<QImage> backs, markers;
    for (int deck = 1; deck <= 12; ++deck) backs << Paint(Picture::Back, deck);
    for (int n = 0; n <= 15; ++n) markers << Paint(Picture::Marker, n);
    const QString twins = FirstTwins(backs, "backs") + FirstTwins(markers, "markers");
    QVERIFY2(twins.isEmpty(), qPrintable(twins));
    QVERIFY(!IsBlank(markers[14]));  // an empty place is still outlined on the table
  }

  void everyCommandHasItsOwnIcon() {
    QStringList keys{"Recent", "Toolbar", "FOLDER", "FILE", "Q1"};
    for (const qv::ToolbarButtonDef& b : qv::ToolbarLayout())
      if (!QString(b.key).startsWith("Sep")) keys << b.key;
    QList<QImage> drawn;
    for (const QString& key : keys) {
      const QIcon icon = qv::CommandIcon(key);
      QVERIFY2(icon.availableSizes().size() == 3, qPrintable(key));
      drawn << icon.pixmap(24).toImage();
      QVERIFY2(!IsBlank(drawn.last()), qPrintable(key));
    }
    const QString twins = FirstTwins(drawn, "icons");
    QVERIFY2(twins.isEmpty(), qPrintable(twins));
    QVERIFY(qv::CommandIcon("new").isNull() && qv::CommandIcon("").isNull());
  }
};

QTEST_MAIN(TestCardPainter)
#include "test_card_painter.moc"
