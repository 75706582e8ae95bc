#pragma once

#include <QDialog>

class QLabel;
class QTreeWidget;
class QTreeWidgetItem;

namespace qv {

class Program;

// Customize Card Deck: the decks of the picture library by group, and a preview of the
// chosen back. OK makes it the deck of the table, face-down cards included.
class CardDeckDialog : public QDialog {
  Q_OBJECT
 public:
  // Item data of the tree: a deck node's deck number, and each node's key.
  static constexpr int kTagRole = Qt::UserRole;
  static constexpr int kKeyRole = Qt::UserRole + 1;

  explicit CardDeckDialog(Program& app, QWidget* parent = nullptr);
  int CurrentDeck() const { return deck_; }

 private:
  void FillTree();
  void NodeChosen(QTreeWidgetItem* item);
  void ShowPreview();
  void Store();

  Program& app_;
  QTreeWidget* tree_;
  QLabel* preview_;
  int deck_;
};

}  // namespace qv
