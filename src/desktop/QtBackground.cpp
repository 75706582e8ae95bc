#include "QtBackground.h"

#include <QImageReader>
#include <QPainter>
#include <QSaveFile>
#include <QWidget>

#include "BackgroundPainter.h"

namespace qv {

namespace {
// The table's colour before any background is painted, and what a clear leaves.
const QColor kCleared(0, 64, 0);
}  // namespace

QtBackground::QtBackground(QWidget& target) : target_(target) { Resize(QSize(1, 1), 1); }

void QtBackground::Paint(const std::function<void()>& paint) {
  last_ = paint;
  paint();
  target_.update();
}

void QtBackground::Clear() {
  last_ = nullptr;
  canvas_.fill(kCleared);
  target_.update();
}

void QtBackground::Gradient(Rgb top, Rgb bottom) {
  Paint([this, top, bottom] {
    QImage run = BackgroundPainter::Gradient(canvas_.size(), QColor(top.r, top.g, top.b), QColor(bottom.r, bottom.g, bottom.b));
    QPainter(&canvas_).drawImage(QPoint(0, 0), run);
  });
}

QImage QtBackground::Load(const BackPicture& picture) const {
  if (picture.kind == BackPicture::File) {
    QImageReader reader(QString::fromStdString(picture.path));
    reader.setAutoTransform(true);  // a photo stands as it was taken
    return reader.read();           // null when it does not decode
  }
  const QString key = QString("%1 %2 %3").arg(picture.kind).arg(picture.index).arg(dpr_);
  auto found = builtIn_.find(key);
  if (found == builtIn_.end())
    found = builtIn_.insert(key, picture.kind == BackPicture::Texture ? BackgroundPainter::Texture(picture.index, dpr_)
                                                                      : BackgroundPainter::Picture(picture.index, dpr_));
  return *found;
}

bool QtBackground::ShowPicture(const BackPicture& picture, bool tile) {
  QImage image = Load(picture);
  if (image.isNull()) return false;
  image.setDevicePixelRatio(1);  // drawn in device pixels
  Paint([this, image, tile] {
    QPainter p(&canvas_);
    // In device pixels, one picture pixel to one screen pixel: a file is never scaled.
    p.resetTransform();
    const QSize size = canvas_.size();
    if (tile) {
      p.drawTiledPixmap(QRect(QPoint(0, 0), size), QPixmap::fromImage(image));
    } else {
      p.drawImage(QPoint((size.width() - image.width()) / 2, (size.height() - image.height()) / 2), image);
    }
  });
  return true;
}

void QtBackground::SetWallTimer(int intervalMs) {
  if (onWallTimer) onWallTimer(intervalMs);
}

bool QtBackground::SaveDefaultImage(const std::string& path) {
  QSaveFile file(QString::fromStdString(path));
  return file.open(QIODevice::WriteOnly) && BackgroundPainter::DefaultImage().save(&file, "BMP") && file.commit();
}

void QtBackground::Resize(QSize size, qreal dpr) {
  const QSize pixels = (size * dpr).expandedTo(QSize(1, 1));
  if (!canvas_.isNull() && pixels == canvas_.size() && dpr == dpr_) return;
  if (dpr != dpr_) builtIn_.clear();
  dpr_ = dpr;
  canvas_ = QPixmap(pixels);
  canvas_.fill(kCleared);
  if (last_) last_();
  target_.update();
}

}  // namespace qv
