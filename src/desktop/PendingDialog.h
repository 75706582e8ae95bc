#pragma once

#include <QDialog>

class QPushButton;
class QTreeWidget;

namespace qv {

class Program;

// Pending List Manager: the games set aside to finish later, one row a file of the
// pending folder. Play Now takes one to the table; Delete drops one for good.
class PendingDialog : public QDialog {
  Q_OBJECT
 public:
  explicit PendingDialog(Program& app, QWidget* parent = nullptr);

  static constexpr int kPathRole = Qt::UserRole;

 private:
  void Fill();
  void EnableButtons();
  void Play();
  void Delete();

  Program& app_;
  QTreeWidget* list_;
  QPushButton* play_;
  QPushButton* delete_;
};

}  // namespace qv
