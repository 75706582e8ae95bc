#pragma once

#include <QAbstractTableModel>
#include <QDialog>
#include <vector>

#include "scores/ScoreDate.h"

class QComboBox;
class QTableView;

namespace qv {

class Program;
class cScore;

// The rows of the log: entries of the open store that pass the filters, in its order.
class LogModel : public QAbstractTableModel {
  Q_OBJECT
 public:
  explicit LogModel(const cScore& score, QObject* parent = nullptr) : QAbstractTableModel(parent), score_(score) {}
  void Filter(const std::string& player, const std::string& game, const std::string& dateKey, const CivilDate& today);
  int rowCount(const QModelIndex& = {}) const override { return static_cast<int>(rows_.size()); }
  int columnCount(const QModelIndex& = {}) const override;
  QVariant data(const QModelIndex& index, int role) const override;
  QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

 private:
  const cScore& score_;
  std::vector<int32_t> rows_;  // entries of the store, from 1
};

// "Log Statistics": every recorded game, by player, game and date.
class LogStatDialog : public QDialog {
  Q_OBJECT
 public:
  LogStatDialog(Program& app, QWidget* parent = nullptr);
  ~LogStatDialog() override;

 private:
  void Refill();

  Program& app_;
  LogModel* model_;
  QTableView* view_;
  QComboBox *playerBox_, *gameBox_, *dateBox_;
};

}  // namespace qv
