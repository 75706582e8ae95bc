#include "ScoreTables.h"

#include <QComboBox>
#include <QHeaderView>
#include <QTreeWidget>

#include "scores/Players.h"
#include "scores/ScoreText.h"
#include "DialogParts.h"
#include "session/Program.h"

namespace qv {

QString ScoreCell(const ScoreRec& r, const QString& c, int slot) {
  if (c == "S No.") return QString::number(slot);
  if (c == "Date") return QString::fromStdString(ShortDate(r.Day));
  if (c == "Game") return QString::fromStdString(r.GameName);
  if (c == "Player") return QString::fromStdString(r.Player);
  if (c == "Score") return QString::number(r.Score);
  if (c == "Time") return QString::fromStdString(FormatSeconds(r.Time));
  if (c == "Moves") return QString::number(r.Moves);
  if (c == "Status") return QString::fromStdString(StatusText(r.Won));
  return QString::fromStdString(r.GameNo.Text());  // "Game No.", "Game Number"
}

QTreeWidget* NewScoreList(const char* name, const QStringList& columns) {
  auto* list = NewRowList(name, columns);
  list->header()->setSectionResizeMode(QHeaderView::ResizeToContents);
  list->setStyleSheet("QTreeView::item { padding-right: 14px; }");  // columns never touch
  list->header()->setStretchLastSection(true);
  return list;
}

void MarkColumn(QTreeWidget* list, int column) {
  for (int i = 0; i < list->topLevelItemCount(); ++i) {
    QTreeWidgetItem* item = list->topLevelItem(i);
    QFont bold = item->font(column);
    bold.setBold(true);
    item->setFont(column, bold);
    item->setForeground(column, QColor(128, 0, 0));
  }
}

QComboBox* NewSelector(const char* name) {
  auto* box = new QComboBox;
  box->setObjectName(name);
  box->setSizeAdjustPolicy(QComboBox::AdjustToContents);
  box->setMaxVisibleItems(20);
  return box;
}

void FillGames(const Program& app, QComboBox* box, const QString& first) {
  box->clear();
  if (!first.isEmpty()) box->addItem(first);
  for (int g = 1; g <= app.cData.TotalGames(); ++g) box->addItem(QString::fromStdString(app.cData.GetGName(g)));
}

void FillPlayers(const Program& app, QComboBox* box, const QString& first) {
  box->clear();
  if (!first.isEmpty()) box->addItem(first);
  const int count = PlayerCount(app.cRegistry);
  for (int p = 1; p <= count; ++p) box->addItem(QString::fromStdString(GetPlayer(app.cRegistry, p)));
}

void SelectText(QComboBox* box, const QString& text) {
  if (const int i = box->findText(text, Qt::MatchExactly | Qt::MatchCaseSensitive); i >= 0) box->setCurrentIndex(i);
}

}  // namespace qv
