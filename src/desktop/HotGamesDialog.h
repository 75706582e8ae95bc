#pragma once

#include <QDialog>

class QPushButton;
class QTreeWidget;
class QTreeWidgetItem;

namespace qv {

class Program;

// Hot Games: every game on one side or the other. A game moved across is marked or
// unmarked in the settings at once, so there is nothing to confirm.
class HotGamesDialog : public QDialog {
  Q_OBJECT
 public:
  explicit HotGamesDialog(Program& app, QWidget* parent = nullptr);

  static constexpr int kIdRole = Qt::UserRole;  // the game's id, which keeps both lists in game order

 private:
  void Move(QTreeWidget* from, QTreeWidget* to, int hot);
  void EnableButtons();

  Program& app_;
  QTreeWidget* left_;
  QTreeWidget* right_;
  QPushButton* add_;
  QPushButton* remove_;
};

}  // namespace qv
