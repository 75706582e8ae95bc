#pragma once

#include <QDialog>
#include <QTimer>

class QLabel;
class QPushButton;
class QSlider;
class QTreeView;

namespace qv {

class JournalModel;
class Program;

// Moves Manager: a slider over every position of the journal and a row for each, to put
// the table back at any move and play on from there, or to run a replay of the game.
class QuickMoveDialog : public QDialog {
  Q_OBJECT
 public:
  explicit QuickMoveDialog(Program& app, QWidget* parent = nullptr);

  bool MoreOpen() const { return moreOpen_; }

 private:
  QWidget* BuildUpperPart();
  void FillSlider();
  void ShowPosition(int id);
  // Slider, labels and the marked row follow where the table stands.
  void ShowTable();
  void MarkRow(int row, bool select);
  void ToggleMore();
  void FitFolded();

  void SliderChanged(int value);
  void Scrub();
  void RowClicked(const QModelIndex& index);
  void StartReplay(const char* key);
  void MoveTick();
  void ReplayTick();

  Program& app_;
  JournalModel* model_;
  QSlider* slider_;
  QPushButton* back_;
  QPushButton* forward_;
  QPushButton* replayBack_;
  QPushButton* replayStop_;
  QPushButton* replayForward_;
  QPushButton* more_;
  QLabel* text1_;
  QLabel* text2_;
  QLabel* text3_;
  QWidget* upper_;
  QTreeView* list_;
  QTimer tmrMove_;
  QTimer tmrReplay_;
  QTimer scrub_;  // while the thumb is dragged: the table follows once a display frame
  int dragFrom_ = -1;  // where the table stood when the thumb was taken; -1 when not held
  bool moreOpen_ = false;
  int foldedHeight_ = 0;
};

}  // namespace qv
