#pragma once

#include <QDialog>

class QListWidget;
class QListWidgetItem;

namespace qv {

class MainWindow;

// Customize Toolbar: one checked row for each of the 30 buttons. Every change is written
// to the settings at once and shown on the main window's toolbar at once.
class ToolbarDialog : public QDialog {
  Q_OBJECT
 public:
  explicit ToolbarDialog(MainWindow& main);

 private:
  void LoadChecks();
  void CheckChanged(QListWidgetItem* item);
  void LoadDefaults();
  void SelectAll();

  MainWindow& main_;
  QListWidget* list_;
  bool loading_ = false;  // checks set from the settings are not changes of the user's
};

}  // namespace qv
