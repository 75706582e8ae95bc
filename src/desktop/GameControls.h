#pragma once

#include <QObject>
#include <functional>

class QCheckBox;
class QComboBox;
class QGridLayout;
class QWidget;

namespace qv {

class Program;

// The tableau controls of the New Game form and the wizard. They write into cCustom as
// they change; the preview is repainted through onPreview.
class GameControls : public QObject {
 public:
  // Labels in the order piles, order, space, multi order, suits.
  GameControls(Program& app, QGridLayout* grid, const QStringList& labels, QWidget* owner);
  // Shows what cCustom holds; runs no change handler, so no message comes at load.
  void FillGameCombos();
  std::function<void()> onPreview;

  QComboBox *imcHPiles, *imcHorder, *imcHSpace, *imcMOrder, *imcSuits;
  QCheckBox* chkHAK;

 private:
  // A one-suit deck can only take whole groups of one suit: says so and falls back.
  bool BreaksSingleSuit();
  void Preview() {
    if (onPreview) onPreview();
  }
  Program& app_;
};

}  // namespace qv
