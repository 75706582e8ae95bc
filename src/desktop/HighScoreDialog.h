#pragma once

#include <QDialog>

class QComboBox;
class QTreeWidget;

namespace qv {

class Program;

// "High Score": the top twenty by score overall, of a game, of a player, and of the won
// games by score, moves or time. The score files are read when it opens.
class HighScoreDialog : public QDialog {
  Q_OBJECT
 public:
  HighScoreDialog(Program& app, QWidget* parent = nullptr);
  ~HighScoreDialog() override;

 private:
  // Reads TopList into a list after one sort; `marked` is the column ranked by.
  void FillFromTop(QTreeWidget* list, bool byDate, int marked);
  void FillGames();
  void FillPlayer();
  void FillFin();

  Program& app_;
  QTreeWidget *top_, *games_, *player_, *fin_;
  QComboBox *gameBox_, *playerBox_, *finBox_;
};

}  // namespace qv
