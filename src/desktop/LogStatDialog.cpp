#include "LogStatDialog.h"

#include <QComboBox>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QPushButton>
#include <QTableView>
#include <QVBoxLayout>

#include "DialogParts.h"
#include "ScoreTables.h"
#include "scores/StatFigures.h"
#include "session/Program.h"

namespace qv {

namespace {
const QStringList kColumns{"Date", "Player", "Game", "Score", "Time", "Moves", "Status", "Game Number"};
const QString kAllPlayers = "All Players", kAllGames = "All Games";
}  // namespace

void LogModel::Filter(const std::string& player, const std::string& game, const std::string& dateKey,
                      const CivilDate& today) {
  beginResetModel();
  rows_.clear();
  for (int32_t i = 1; i <= score_.ScoreTop(); ++i) {
    const ScoreRec& r = score_.ScoreItem(i);
    if ((!player.empty() && player != r.Player) || (!game.empty() && game != r.GameName) ||
        !LogKeeps(r, dateKey, today))
      continue;
    rows_.push_back(i);
  }
  endResetModel();
}

int LogModel::columnCount(const QModelIndex&) const { return static_cast<int>(kColumns.size()); }

QVariant LogModel::data(const QModelIndex& index, int role) const {
  if (role != Qt::DisplayRole || !index.isValid()) return {};
  return ScoreCell(score_.ScoreItem(rows_[index.row()]), kColumns[index.column()]);
}

QVariant LogModel::headerData(int section, Qt::Orientation orientation, int role) const {
  if (role != Qt::DisplayRole || orientation != Qt::Horizontal) return {};
  return kColumns.value(section);
}

LogStatDialog::LogStatDialog(Program& app, QWidget* parent)
    : QDialog(parent),
      app_(app),
      model_(new LogModel(app.cScore, this)),
      view_(new QTableView),
      playerBox_(NewSelector("imcPlayer")),
      gameBox_(NewSelector("imcGames")),
      dateBox_(NewSelector("imcDate")) {
  setWindowTitle("Log Statistics");
  setModal(true);
  view_->setObjectName("lvLog");
  view_->setModel(model_);
  view_->setSelectionBehavior(QAbstractItemView::SelectRows);
  view_->setShowGrid(false);
  view_->setWordWrap(false);
  view_->verticalHeader()->hide();
  // Fixed row heights and column widths: a hundred thousand rows are never measured.
  view_->verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
  view_->verticalHeader()->setDefaultSectionSize(view_->fontMetrics().height() + 6);
  view_->horizontalHeader()->setStretchLastSection(true);
  const int widths[] = {90, 110, 150, 70, 75, 65, 65};
  for (int c = 0; c < 7; ++c) view_->setColumnWidth(c, widths[c]);

  auto* selectors = new QHBoxLayout;
  selectors->addWidget(playerBox_);
  selectors->addWidget(gameBox_);
  selectors->addWidget(dateBox_);
  selectors->addStretch();
  auto* buttons = CloseRow(this);
  auto* layout = new QVBoxLayout(this);
  layout->addLayout(selectors);
  layout->addWidget(view_);
  layout->addLayout(buttons);
  resize(820, 520);

  app_.cScore.OpenAllScore();
  FillPlayers(app_, playerBox_, kAllPlayers);
  FillGames(app_, gameBox_, kAllGames);
  for (const LogDateItem& item : LogDateItems()) dateBox_->addItem(item.text, item.key);
  dateBox_->setCurrentIndex(dateBox_->count() - 1);  // "Show All"
  Refill();
  for (QComboBox* box : {playerBox_, gameBox_, dateBox_})
    connect(box, &QComboBox::currentIndexChanged, this, &LogStatDialog::Refill);
  app_.cSound.LogStat();
}

LogStatDialog::~LogStatDialog() { app_.cScore.CloseScore(); }

void LogStatDialog::Refill() {
  const std::string player = playerBox_->currentIndex() > 0 ? playerBox_->currentText().toStdString() : "";
  const std::string game = gameBox_->currentIndex() > 0 ? gameBox_->currentText().toStdString() : "";
  model_->Filter(player, game, dateBox_->currentData().toString().toStdString(), LocalDay(app_.surface.clock.Now()));
}

}  // namespace qv
