#pragma once

#include <QDialog>

class QComboBox;
class QLineEdit;

namespace qv {

class Program;

// "Select a Game Number": a game, a player and a number, and that deal is started.
class ChooseDialog : public QDialog {
  Q_OBJECT
 public:
  explicit ChooseDialog(Program& app, QWidget* parent = nullptr);

 private:
  void Select();

  Program& app_;
  QLineEdit* number_;
  QComboBox* games_;
  QComboBox* players_;
};

// The players in slot order in a combo box, the current one chosen (else the first).
void FillPlayers(const Program& app, QComboBox* box);

}  // namespace qv
