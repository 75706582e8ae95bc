#pragma once

#include <QDialog>
#include <QIcon>

class QLineEdit;
class QPushButton;
class QTreeWidget;
class QTreeWidgetItem;

namespace qv {

class Program;

// Sounds: the thirty events by group, each marked as having a file or not; a file is
// chosen, tried and stored for the event under the cursor, or the event is silenced.
class SoundsDialog : public QDialog {
  Q_OBJECT
 public:
  static constexpr int kTagRole = Qt::UserRole;  // an event node's key
  explicit SoundsDialog(Program& app, QWidget* parent = nullptr);

  void Browse();
  void Apply();
  void Remove();
  // The marks of a node: a sound set, or none.
  static QIcon SetMark();
  static QIcon UnsetMark();

 private:
  void NodeChosen(QTreeWidgetItem* item);
  QString Key() const;

  Program& app_;
  QTreeWidget* tree_;
  QLineEdit* path_;
  QPushButton *browse_, *play_, *apply_, *remove_;
};

}  // namespace qv
