#pragma once

#include <QDialog>

class QPushButton;
class QTabWidget;
class QTreeWidget;

namespace qv {

class Program;

// Auto Save: the copies of ended games in the AutoSave folder, given-up games on the first
// tab and won games on the second, read from the folder each time anything changes.
class AutoSaveDialog : public QDialog {
  Q_OBJECT
 public:
  explicit AutoSaveDialog(Program& app, QWidget* parent = nullptr);

  // A row's full path, and the "Name - Number" its questions call it by.
  static constexpr int kPathRole = Qt::UserRole;
  static constexpr int kTagRole = Qt::UserRole + 1;

  void reject() override;

 private:
  void Refresh();
  bool Fill(QTreeWidget* list, bool won);
  QTreeWidget* CurrentList() const;
  void EnableRowButtons(bool on);
  void Play();
  void Delete();
  void Empty(bool won);
  void StoreTab();

  Program& app_;
  QTabWidget* tabs_;
  QTreeWidget* inc_;
  QTreeWidget* fin_;
  QPushButton* play_;
  QPushButton* delete_;
  QPushButton* empInc_;
  QPushButton* empFin_;
};

}  // namespace qv
