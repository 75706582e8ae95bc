#include "GameStatDialog.h"

#include <QChartView>
#include <QComboBox>
#include <QDir>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QPushButton>
#include <QTabWidget>
#include <QTreeWidget>
#include <QVBoxLayout>

#include "DialogParts.h"
#include "FileCommands.h"
#include "ScoreTables.h"
#include "StatCharts.h"
#include "scores/Players.h"
#include "scores/ScoreText.h"
#include "scores/StatFigures.h"
#include "session/Program.h"

namespace qv {

namespace {

QString Q(const std::string& s) { return QString::fromStdString(s); }

void WonAndLost(QChartView* chart, const TotalsRec& t) {
  ShowPie(chart, {{"Won : " + QString::number(t.Won), t.Won}, {"Lost : " + QString::number(t.Played - t.Won), t.Played - t.Won}});
}

void ScoreMovesTime(QChartView* chart, const TotalsRec& t) {
  ShowBars(chart, {"Score", "Moves", "Time"}, {qreal(std::max(t.Score, 0)), qreal(t.Moves), qreal(t.Time)});
}

QStringList TotalsCells(const QString& name, const TotalsRec& t, const std::string& perc) {
  return {name,
          QString::number(t.Played),
          QString::number(t.Won),
          QString::number(t.Played - t.Won),
          Q(FormatSeconds(t.Time)),
          QString::number(t.Moves),
          QString::number(t.Score),
          Q(perc)};
}

// A tab: the list on top with its selector, two charts side by side below.
QWidget* Page(QTreeWidget* list, QComboBox* selector, QChartView* a, QChartView* b) {
  auto* page = new QWidget;
  auto* layout = new QVBoxLayout(page);
  if (selector) {
    auto* row = new QHBoxLayout;
    row->addWidget(selector);
    row->addStretch();
    layout->addLayout(row);
  }
  layout->addWidget(list, 2);
  auto* charts = new QHBoxLayout;
  charts->addWidget(a, 1);
  charts->addWidget(b, 1);
  layout->addLayout(charts, 3);
  return page;
}

}  // namespace

GameStatDialog::GameStatDialog(Program& app, QWidget* parent)
    : QDialog(parent),
      app_(app),
      general_(NewScoreList("lvGeneral", {"Summary"})),
      games_(NewScoreList("lvGames", {"Game", "Played", "Won", "Lost", "Time", "Moves", "Score", "Perc"})),
      dates_(NewScoreList("lvDate", {"Day", "Played", "Won"})),
      players_(NewScoreList("lvPlayer", {"Player", "Played", "Won", "Lost", "Time", "Moves", "Score", "Perc"})),
      gameBox_(NewSelector("imcGames")),
      dateBox_(NewSelector("imcDate")),
      playerBox_(NewSelector("imcPlayer")),
      chGen_(NewChartView("chGen")),
      chGen1_(NewChartView("chGen1")),
      chGames_(NewChartView("chGames")),
      chGames1_(NewChartView("chGames1")),
      chDate_(NewChartView("chDate")),
      chDate1_(NewChartView("chDate1")),
      chPlayer_(NewChartView("chPlayer")),
      chPlayer1_(NewChartView("chPlayer1")) {
  setWindowTitle("Game Statistics");
  setModal(true);
  general_->setHeaderHidden(true);
  auto* tabs = new QTabWidget;
  tabs->setObjectName("SSTab1");
  tabs->addTab(Page(general_, nullptr, chGen_, chGen1_), "General Summary");
  tabs->addTab(Page(games_, gameBox_, chGames_, chGames1_), "Game-wise");
  tabs->addTab(Page(dates_, dateBox_, chDate_, chDate1_), "Date-wise");
  tabs->addTab(Page(players_, playerBox_, chPlayer_, chPlayer1_), "Player-wise");
  for (const PeriodItem& item : PeriodItems()) dateBox_->addItem(item.text, item.key);

  auto* clear = NamedButton("cmdClear", "Clear Statistics");
  auto* exportButton = NamedButton("cmdExport", "Export Statistics");
  auto* close = NamedButton("cmdClose", "Close");
  close->setDefault(true);
  connect(clear, &QPushButton::clicked, this, &GameStatDialog::Clear);
  connect(exportButton, &QPushButton::clicked, this, &GameStatDialog::Export);
  connect(close, &QPushButton::clicked, this, &QDialog::accept);
  auto* buttons = new QHBoxLayout;
  buttons->addWidget(clear);
  buttons->addWidget(exportButton);
  buttons->addStretch();
  buttons->addWidget(close);
  auto* layout = new QVBoxLayout(this);
  layout->addWidget(tabs);
  layout->addLayout(buttons);
  resize(860, 640);

  Reload();
  connect(gameBox_, &QComboBox::currentIndexChanged, this, &GameStatDialog::ShowGameCharts);
  connect(dateBox_, &QComboBox::currentIndexChanged, this, &GameStatDialog::FillDates);
  connect(playerBox_, &QComboBox::currentIndexChanged, this, &GameStatDialog::ShowPlayerCharts);
  app_.cSound.GameStat();
}

GameStatDialog::~GameStatDialog() { app_.cScore.CloseScore(); }

void GameStatDialog::Reload() {
  const QSignalBlocker g(gameBox_), d(dateBox_), p(playerBox_);
  app_.cScore.OpenAllScore();
  FillGeneral();
  FillGames();
  dateBox_->setCurrentIndex(0);
  FillDates();
  FillPlayers();
}

void GameStatDialog::FillGeneral() {
  general_->clear();
  const TotalsRec t = app_.cScore.AllTotals();
  for (const auto& [label, value] : GeneralRows(t)) general_->addTopLevelItem(new QTreeWidgetItem({Q(label + value)}));
  WonAndLost(chGen_, t);
  ScoreMovesTime(chGen1_, t);
}

void GameStatDialog::FillGames() {
  games_->clear();
  for (int g = 1; g <= app_.cData.TotalGames(); ++g) {
    const TotalsRec t = app_.cScore.GameTotals(app_.cData.GetGName(g));
    games_->addTopLevelItem(new QTreeWidgetItem(TotalsCells(Q(app_.cData.GetGName(g)), t, GamePercent(t))));
  }
  ::qv::FillGames(app_, gameBox_);
  SelectText(gameBox_, Q(app_.cGamePlay.GameName()));
  ShowGameCharts();
}

void GameStatDialog::ShowGameCharts() {
  const std::string game = gameBox_->currentText().toStdString();
  WonAndLost(chGames_, app_.cScore.GameTotals(game));
  QList<QList<qreal>> columns(3);
  // The game's first fifty records, as GameItem(game, 1 to 50) gives them, in one pass.
  const cScore& s = app_.cScore;
  for (int32_t i = 1; i <= s.ScoreTop() && columns[0].size() < 50; ++i) {
    const ScoreRec& r = s.ScoreItem(i);
    if (r.GameName != game) continue;
    columns[0] << r.Score;
    columns[1] << r.Moves;
    columns[2] << r.Time;
  }
  ShowLines(chGames1_, {"Score", "Moves", "Time"}, columns);
}

void GameStatDialog::FillDates() {
  const PeriodItem& item = PeriodItems()[std::max(dateBox_->currentIndex(), 0)];
  dates_->clear();
  QStringList labels;
  QList<QList<qreal>> counts(2), figures(3);
  for (const PeriodRec& row : PeriodRows(app_.cScore, item, LocalDay(app_.surface.clock.Now()))) {
    dates_->addTopLevelItem(new QTreeWidgetItem({Q(row.Label), QString::number(row.Played), QString::number(row.Won)}));
    labels << Q(row.Label);
    counts[0] << row.Played;
    counts[1] << row.Won;
    figures[0] << row.Score;
    figures[1] << row.Moves;
    figures[2] << row.Time;
  }
  dates_->headerItem()->setText(0, item.heading);
  ShowLines(chDate_, {"Played", "Won"}, counts, labels);
  ShowLines(chDate1_, {"Score", "Moves", "Time"}, figures, labels);
}

void GameStatDialog::FillPlayers() {
  players_->clear();
  ::qv::FillPlayers(app_, playerBox_);
  for (int p = 1; p <= PlayerCount(app_.cRegistry); ++p) {
    const std::string name = GetPlayer(app_.cRegistry, p);
    const TotalsRec t = app_.cScore.PlayerTotals(name);
    players_->addTopLevelItem(new QTreeWidgetItem(TotalsCells(Q(name), t, PlayerPercent(t))));
  }
  SelectText(playerBox_, Q(GetCurPlayer(app_.cRegistry)));
  ShowPlayerCharts();
}

void GameStatDialog::ShowPlayerCharts() {
  const TotalsRec t = app_.cScore.PlayerTotals(playerBox_->currentText().toStdString());
  WonAndLost(chPlayer_, t);
  ScoreMovesTime(chPlayer1_, t);
}

void GameStatDialog::Clear() {
  if (app_.cScore.ClearStat()) Reload();
}

void GameStatDialog::Export() {
  FileRequest request;
  request.save = true;
  request.caption = "Export Statistics";
  request.folder = QString::fromStdString(app_.folders.documents.string());
  request.fileName = "Scoreboard";
  request.filters = {"Text File (*.txt)"};
  request.defaultSuffix = "txt";
  const QString path = MainFileChooser()(this, request);
  if (path.isEmpty()) return;
  app_.cScore.ExportStat(path.toStdString());
  Reload();
}

}  // namespace qv
