#pragma once

#include <QApplication>
#include <QTimer>
#include <QWidget>
#include <functional>

// Runs something that opens a modal window, closes that window as soon as it shows, and
// answers its title (empty when nothing modal opened).
inline QString TitleOfModalOpenedBy(const std::function<void()>& open) {
  QString seen;
  QTimer::singleShot(0, [&] {
    if (QWidget* modal = QApplication::activeModalWidget()) {
      seen = modal->windowTitle();
      modal->close();
    }
  });
  open();
  return seen;
}
