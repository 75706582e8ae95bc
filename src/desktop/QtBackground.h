#pragma once

#include <QHash>
#include <QImage>
#include <QPixmap>
#include <functional>

#include "surface/IBackground.h"

class QWidget;

namespace qv {

// The table's background in the window's own pixels: a pixmap the size of the view,
// painted when the background changes and only copied when the table is drawn.
class QtBackground : public IBackground {
 public:
  // `target` is the widget that shows the pixmap; it is asked to repaint after a change.
  explicit QtBackground(QWidget& target);

  void Clear() override;
  void Gradient(Rgb top, Rgb bottom) override;
  bool ShowPicture(const BackPicture& picture, bool tile) override;
  void SetWallTimer(int intervalMs) override;
  bool SaveDefaultImage(const std::string& path) override;

  // The window changed size or screen: clears and repaints the value last shown.
  void Resize(QSize size, qreal dpr);
  const QPixmap& Canvas() const { return canvas_; }
  // The picture of a file, a texture or a built-in picture, at the view's pixel ratio;
  // a null image for a file that does not decode.
  QImage Load(const BackPicture& picture) const;
  std::function<void(int)> onWallTimer;  // the interval, 0 to stop

 private:
  void Paint(const std::function<void()>& paint);

  QWidget& target_;
  QPixmap canvas_;
  qreal dpr_ = 1;
  std::function<void()> last_;  // repaints what was shown last, after a resize
  mutable QHash<QString, QImage> builtIn_;  // painted once per ratio: textures and pictures
};

}  // namespace qv
