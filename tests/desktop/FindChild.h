#pragma once

#include <QWidget>

// The child widget a test needs, by its object name; a missing one stops the test at once.
template <typename T>
T* Get(QWidget& parent, const char* name) {
  T* w = parent.findChild<T*>(name);
  if (!w) qFatal("no %s", name);
  return w;
}
