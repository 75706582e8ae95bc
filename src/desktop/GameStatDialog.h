#pragma once

#include <QDialog>

class QChartView;
class QComboBox;
class QTreeWidget;

namespace qv {

class Program;

// "Game Statistics": what the score files add up to, in general, by game, by period and by
// player, with charts; and the two commands on the whole store, Clear and Export, after
// which every tab shows the files as they are then.
class GameStatDialog : public QDialog {
  Q_OBJECT
 public:
  GameStatDialog(Program& app, QWidget* parent = nullptr);
  ~GameStatDialog() override;

 private:
  void Reload();
  void FillGeneral();
  void FillGames();
  void ShowGameCharts();
  void FillDates();
  void FillPlayers();
  void ShowPlayerCharts();
  void Clear();
  void Export();

  Program& app_;
  QTreeWidget *general_, *games_, *dates_, *players_;
  QComboBox *gameBox_, *dateBox_, *playerBox_;
  QChartView *chGen_, *chGen1_, *chGames_, *chGames1_, *chDate_, *chDate1_, *chPlayer_, *chPlayer1_;
};

}  // namespace qv
