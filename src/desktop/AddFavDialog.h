#pragma once

#include <QDialog>

class QLineEdit;
class QTreeWidget;

namespace qv {

class Program;

// "Add to Favorites": the deal on the table under a name, in the root or one of its folders.
class AddFavDialog : public QDialog {
  Q_OBJECT
 public:
  explicit AddFavDialog(Program& app, QWidget* parent = nullptr);

  static constexpr int kPathRole = Qt::UserRole;

 private:
  void Fill();
  void CreateFolder();
  void Add();

  Program& app_;
  QLineEdit* name_;
  QTreeWidget* tree_;
};

}  // namespace qv
