#pragma once

#include <QDialog>
#include <QList>

class QChartView;
class QLabel;
class QTimer;
class QTreeWidget;

namespace qv {

class Program;

// "Session Statistics": the games ended in this run and the game on the table, whose
// time and score move on every half second while it is open.
class SessionStatDialog : public QDialog {
  Q_OBJECT
 public:
  SessionStatDialog(Program& app, QWidget* parent = nullptr);
  // The tick of Timer1 (500 ms).
  void Tick();

 private:
  void FillSummary();
  void FillDetails();
  void FillThisGame();
  void ShowChart();
  void Refresh();
  QLabel* Label(const char* name);

  Program& app_;
  QTreeWidget *session_, *details_;
  QChartView *summary_, *chart_;
  QTimer* timer_;
  QList<QList<qreal>> table_;  // Score, Moves, Time by column; one row more for a running game
  QLabel *sesStarted_, *sesPlayed_, *sesWon_, *sesLost_, *sesScore_, *sesMoves_, *sesElapsed_;
  QLabel *gameStarted_, *gameName_, *gameNo_, *gameScore_, *gameMoves_, *gameTime_, *player_;
};

}  // namespace qv
