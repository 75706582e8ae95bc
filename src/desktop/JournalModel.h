#pragma once

#include <QAbstractTableModel>
#include <QStyledItemDelegate>

namespace qv {

class Program;

// The journal as the Moves Manager and the Game History list it: four columns, texts made
// when a row is shown, so a long game opens as fast as a short one.
class JournalModel : public QAbstractTableModel {
  Q_OBJECT
 public:
  // Moves: a row per position, "Start" first, piles from 0, steps' inner records grey.
  // History: a row per record, piles from 1, undone records olive.
  enum class Kind { Moves, History };
  static const QColor kMarked, kInner, kUndone;

  JournalModel(const Program& app, Kind kind, QObject* parent = nullptr);

  int rowCount(const QModelIndex& parent = {}) const override;
  int columnCount(const QModelIndex& parent = {}) const override;
  QVariant data(const QModelIndex& index, int role) const override;
  QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

  // The row shown bold and red; -1 for none. The row left gets its own look back.
  void SetMarked(int row);
  int Marked() const { return marked_; }
  // The History's rows: which record stood last on the table when the window opened.
  void SetCurrent(int transID) { current_ = transID; }

 private:
  QString Text(int row, int column) const;
  QVariant Foreground(int row) const;

  const Program& app_;
  Kind kind_;
  int marked_ = -1;
  int current_ = 0;
};

// A selected row keeps its own colour over a light tint of the selection, so the marked
// row shows its red while it is the current one.
class JournalDelegate : public QStyledItemDelegate {
  Q_OBJECT
 public:
  using QStyledItemDelegate::QStyledItemDelegate;

 protected:
  void initStyleOption(QStyleOptionViewItem* option, const QModelIndex& index) const override;
};

}  // namespace qv
