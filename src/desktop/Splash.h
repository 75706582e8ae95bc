#pragma once

#include <QTimer>
#include <QWidget>
#include <functional>

namespace qv {

// The splash window: the program's name and version for two seconds, or until a click or
// a key, then the main window.
class Splash : public QWidget {
  Q_OBJECT
 public:
  Splash(const QString& version, std::function<void()> showMain);

 protected:
  void mousePressEvent(QMouseEvent*) override { UnloadSplash(); }
  void keyPressEvent(QKeyEvent*) override { UnloadSplash(); }

 private:
  void UnloadSplash();
  QTimer timer1_;
  std::function<void()> showMain_;
};

}  // namespace qv
