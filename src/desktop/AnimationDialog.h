#pragma once

#include <QDialog>
#include <array>

class QGroupBox;
class QSlider;

namespace qv {

class Program;

// Animation: the four speeds of card movement. A speed is stored as a number of animation
// steps (0 to 50, fewer is faster); each slider shows 50 minus it, so right is fastest.
// Nothing is stored until OK.
class AnimationDialog : public QDialog {
  Q_OBJECT
 public:
  explicit AnimationDialog(Program& app, QWidget* parent = nullptr);

 private:
  void ShowValues();
  void Store();

  Program& app_;
  std::array<QGroupBox*, 4> frames_{};
  std::array<QSlider*, 4> sliders_{};
};

}  // namespace qv
