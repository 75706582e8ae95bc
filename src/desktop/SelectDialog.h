#pragma once

#include <QDialog>
#include <QLabel>
#include <string>

class QComboBox;
class QListWidget;
class QTreeWidget;
class QTreeWidgetItem;

namespace qv {

class Program;

// A label that answers a click, as the dialog's Play, Rules and Cancel do.
class ClickLabel : public QLabel {
  Q_OBJECT
 public:
  using QLabel::QLabel;
 signals:
  void clicked();

 protected:
  void mouseReleaseEvent(QMouseEvent* event) override;
};

// "Select a Game": every kind of game found in one place (twelve categories), with a
// preview, the details and the rules in short, and Play for the player in the box.
class SelectDialog : public QDialog {
  Q_OBJECT
 public:
  explicit SelectDialog(Program& app, QWidget* parent = nullptr);

  static constexpr int kKeyRole = Qt::UserRole;
  static constexpr int kTagRole = Qt::UserRole + 1;

  // The category click and the node click, as a click in the lists runs them.
  void ChooseCategory(const QString& key);
  void ChooseNode(QTreeWidgetItem* node);
  const std::string& SelKey() const { return selKey_; }
  const std::string& SelGame() const { return selGame_; }
  const std::string& SelItem() const { return selItem_; }
  void Play();

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  void LayOutPanel();
  void Leave();

  Program& app_;
  std::string selKey_, selGame_, selItem_;
  QListWidget* categories_;
  QTreeWidget* tree_;
  QComboBox* players_;
  QLabel* preview_;
  QLabel* game_;
  QListWidget* det_;
  QListWidget* sub_;
  QLabel* blank_;
  QLabel* blankSub_;
  ClickLabel* play_;
  ClickLabel* rules_;
};

}  // namespace qv
