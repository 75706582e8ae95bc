#include "HighScoreDialog.h"

#include <QComboBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QTabWidget>
#include <QTreeWidget>
#include <QVBoxLayout>

#include "DialogParts.h"
#include "ScoreTables.h"
#include "scores/Players.h"
#include "session/Program.h"

namespace qv {

namespace {

QWidget* Page(QComboBox* selector, const char* caption, QTreeWidget* list) {
  auto* page = new QWidget;
  auto* layout = new QVBoxLayout(page);
  if (selector) {
    auto* row = new QHBoxLayout;
    row->addWidget(new QLabel(caption));
    row->addWidget(selector);
    row->addStretch();
    layout->addLayout(row);
  }
  layout->addWidget(list);
  return page;
}

}  // namespace

HighScoreDialog::HighScoreDialog(Program& app, QWidget* parent)
    : QDialog(parent),
      app_(app),
      top_(NewScoreList("lvTop", {"Game", "Player", "Score", "Time", "Moves", "Status", "Date", "Game No."})),
      games_(NewScoreList("lvGames", {"S No.", "Player", "Score", "Time", "Moves", "Status", "Date", "Game No."})),
      player_(NewScoreList("lvPlayer", {"S No.", "Game", "Score", "Time", "Moves", "Status", "Date", "Game No."})),
      fin_(NewScoreList("lvFin", {"S No.", "Game", "Player", "Score", "Time", "Moves", "Date", "Game No."})),
      gameBox_(NewSelector("imcGames")),
      playerBox_(NewSelector("imcPlayer")),
      finBox_(NewSelector("imcFin")) {
  setWindowTitle("High Score");
  setModal(true);
  auto* tabs = new QTabWidget;
  tabs->setObjectName("SSTab1");
  tabs->addTab(Page(nullptr, "", top_), "Top Score");
  tabs->addTab(Page(gameBox_, "Game :", games_), "Game-wise");
  tabs->addTab(Page(playerBox_, "Player :", player_), "Player-wise");
  tabs->addTab(Page(finBox_, "Sorted by :", fin_), "Finished Games");
  auto* buttons = CloseRow(this);
  auto* layout = new QVBoxLayout(this);
  layout->addWidget(tabs);
  layout->addLayout(buttons);
  resize(780, 520);

  app_.cScore.OpenAllScore();
  app_.cScore.Sort("", "", 0);
  FillFromTop(top_, false, 2);
  ::qv::FillGames(app_, gameBox_);
  SelectText(gameBox_, QString::fromStdString(app_.cGamePlay.GameName()));
  FillGames();
  ::qv::FillPlayers(app_, playerBox_);
  SelectText(playerBox_, QString::fromStdString(GetCurPlayer(app_.cRegistry)));
  FillPlayer();
  finBox_->addItems({"Score", "Moves", "Time"});
  FillFin();
  connect(gameBox_, &QComboBox::currentIndexChanged, this, &HighScoreDialog::FillGames);
  connect(playerBox_, &QComboBox::currentIndexChanged, this, &HighScoreDialog::FillPlayer);
  connect(finBox_, &QComboBox::currentIndexChanged, this, &HighScoreDialog::FillFin);
  app_.cSound.HighScore();
}

HighScoreDialog::~HighScoreDialog() { app_.cScore.CloseScore(); }

void HighScoreDialog::FillFromTop(QTreeWidget* list, bool byDate, int marked) {
  list->clear();
  QStringList columns;
  for (int c = 0; c < list->columnCount(); ++c) columns << list->headerItem()->text(c);
  QList<QTreeWidgetItem*> rows;
  for (int i = 1; i <= 20; ++i) {
    const ScoreRec r = app_.cScore.TopItem(i);
    if (byDate ? r.Date.empty() : r.Score <= 0) continue;
    QStringList cells;
    for (const QString& c : columns) cells << ScoreCell(r, c, i);
    rows << new QTreeWidgetItem(cells);
  }
  list->addTopLevelItems(rows);
  MarkColumn(list, marked);
}

void HighScoreDialog::FillGames() {
  app_.cScore.Sort(gameBox_->currentText().toStdString(), "", 0);
  FillFromTop(games_, false, 2);
}

void HighScoreDialog::FillPlayer() {
  app_.cScore.Sort("", playerBox_->currentText().toStdString(), 0);
  FillFromTop(player_, false, 2);
}

void HighScoreDialog::FillFin() {
  const QString by = finBox_->currentText();
  if (by == "Moves") app_.cScore.FinSort(false, true);
  else if (by == "Time") app_.cScore.FinSort(true, false);
  else app_.cScore.Sort("", "", 1);
  FillFromTop(fin_, true, by == "Moves" ? 5 : by == "Time" ? 4 : 3);
}

}  // namespace qv
