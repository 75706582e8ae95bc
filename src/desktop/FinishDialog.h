#pragma once

#include <QDialog>
#include <QString>

class QCheckBox;
class QLineEdit;
class QPushButton;

namespace qv {

class Program;

// "Congrats": the won game's figures, keeping it as a saved file, and the way on. The win
// is recorded before this opens; closing it by any means keeps the game as the check box
// says and clears the table. A next game chosen on its toolbar is left in Next() for the
// caller to start once the winning move has returned.
class FinishDialog : public QDialog {
  Q_OBJECT
 public:
  FinishDialog(Program& app, QWidget* parent = nullptr);
  // "New", "Select", "Restart" or empty.
  const QString& Next() const { return next_; }
  void done(int r) override;

 private:
  void Browse();
  void ShowSaveChoice();

  Program& app_;
  QCheckBox* save_;
  QLineEdit* path_;
  QPushButton* browse_;
  QString next_;
  bool closed_ = false;
};

}  // namespace qv
