#pragma once

#include <QWidget>

#include "surface/IDialogs.h"

namespace qv {

// The program's message boxes, modal over the main window.
class QtMessageBoxes : public IDialogs {
 public:
  void SetParent(QWidget* parent) { parent_ = parent; }
  Answer MsgBox(const std::string& text, MsgStyle style, const std::string& title) override;

 private:
  QWidget* parent_ = nullptr;
};

}  // namespace qv
