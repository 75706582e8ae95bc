#pragma once

#include <QDialog>

class QLabel;
class QLineEdit;
class QPushButton;
class QTabWidget;

namespace qv {

class GameControls;
class PreviewBox;
class Program;

// frmNewGameWizard: a new game in three pages, name, tableau and preview.
class NewGameWizard : public QDialog {
 public:
  explicit NewGameWizard(Program& app, QWidget* parent = nullptr);
  GameControls& controls() { return *controls_; }

 private:
  void Next();
  void Back();
  void RepaintPreview();

  Program& app_;
  QTabWidget* SSTab1_;
  QLineEdit* txtName_;
  GameControls* controls_;
  QLabel* picTab_;
  PreviewBox* picPreview_;
  QPushButton *lbBack_, *lbNext_, *lbFinish_, *lbCancel_;
};

}  // namespace qv
