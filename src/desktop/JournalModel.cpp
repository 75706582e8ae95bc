#include "JournalModel.h"

#include <QColor>
#include <QFont>

#include "session/MoveText.h"
#include "session/Program.h"

namespace qv {

const QColor JournalModel::kMarked(128, 0, 0);
const QColor JournalModel::kInner(150, 150, 150);
const QColor JournalModel::kUndone(128, 128, 0);

JournalModel::JournalModel(const Program& app, Kind kind, QObject* parent)
    : QAbstractTableModel(parent), app_(app), kind_(kind) {}

int JournalModel::rowCount(const QModelIndex& parent) const {
  if (parent.isValid()) return 0;
  return kind_ == Kind::Moves ? app_.cEngine.GetTransTop() + 1 : app_.cEngine.GetTransTop();
}

int JournalModel::columnCount(const QModelIndex& parent) const { return parent.isValid() ? 0 : 4; }

QString JournalModel::Text(int row, int column) const {
  if (kind_ == Kind::Moves) {
    const QuickMoveRow r = QuickMoveRowOf(app_, row);
    const std::string* texts[] = {&r.moves, &r.source, &r.destination, &r.cards};
    return QString::fromStdString(*texts[column]);
  }
  const int id = row + 1;
  const cEngine& e = app_.cEngine;
  switch (column) {
    case 0: return QString::number(id);
    case 1: return QString::fromStdString(SourceText(e, id, 1));
    case 2: return QString::fromStdString(DestText(e, id, 1));
    default: return QString::fromStdString(CardsText(e, id));
  }
}

// Normal rows keep the palette's text colour, so a dark theme stays readable.
QVariant JournalModel::Foreground(int row) const {
  if (row == marked_) return kMarked;
  if (kind_ == Kind::Moves) return row > 0 && InsideStep(app_.cEngine, row) ? QVariant(kInner) : QVariant();
  return row + 1 > current_ ? QVariant(kUndone) : QVariant();
}

QVariant JournalModel::data(const QModelIndex& index, int role) const {
  if (!index.isValid()) return {};
  switch (role) {
    case Qt::DisplayRole: return Text(index.row(), index.column());
    case Qt::ForegroundRole: return Foreground(index.row());
    case Qt::FontRole:
      if (index.row() != marked_) return {};
      {
        QFont bold;
        bold.setBold(true);
        return bold;
      }
    case Qt::TextAlignmentRole:
      return index.column() == 3 ? QVariant(Qt::AlignRight | Qt::AlignVCenter) : QVariant();
    default: return {};
  }
}

QVariant JournalModel::headerData(int section, Qt::Orientation orientation, int role) const {
  if (orientation != Qt::Horizontal || role != Qt::DisplayRole) return {};
  static const char* kMoves[] = {"Moves", "Source", "Destination", "Cards"};
  static const char* kHistory[] = {"", "Source", "Destination", "Cards"};
  return QString(kind_ == Kind::Moves ? kMoves[section] : kHistory[section]);
}

void JournalModel::SetMarked(int row) {
  const int old = marked_;
  marked_ = row;
  for (int r : {old, row})
    if (r >= 0 && r < rowCount()) emit dataChanged(index(r, 0), index(r, 3));
}

void JournalDelegate::initStyleOption(QStyleOptionViewItem* option, const QModelIndex& index) const {
  QStyledItemDelegate::initStyleOption(option, index);
  if (!(option->state & QStyle::State_Selected)) return;
  QColor tint = option->palette.color(QPalette::Highlight);
  tint.setAlpha(64);
  for (auto group : {QPalette::Active, QPalette::Inactive}) {
    option->palette.setColor(group, QPalette::Highlight, tint);
    option->palette.setBrush(group, QPalette::HighlightedText, option->palette.brush(QPalette::Text));
  }
}

}  // namespace qv
