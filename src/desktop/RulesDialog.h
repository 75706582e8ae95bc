#pragma once

#include <QDialog>

namespace qv {

class Program;
class MainWindow;

// frmRules, "Rules": the page of the game cCustom holds, filled at load.
class RulesDialog : public QDialog {
 public:
  explicit RulesDialog(Program& app, QWidget* parent = nullptr);
};

// Opens the rules page of the game cCustom holds, closing one already open: blocking, or
// beside the table while the game is played.
void ShowRulesWindow(MainWindow& main, bool modal);

}  // namespace qv
