#pragma once

#include <QDialog>
#include <string>

class QLineEdit;

namespace qv {

class GameControls;
class PreviewBox;
class Program;

// frmAddGame: one page to create a game (EditGame empty) or to change the game EditGame.
class AddGameDialog : public QDialog {
 public:
  AddGameDialog(Program& app, const std::string& EditGame, QWidget* parent = nullptr);
  GameControls& controls() { return *controls_; }

 private:
  void Save();

  Program& app_;
  std::string editGame_;
  QLineEdit* txtName_;
  GameControls* controls_;
  PreviewBox* pic1_;
};

}  // namespace qv
