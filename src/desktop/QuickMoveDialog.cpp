#include "QuickMoveDialog.h"

#include <QGroupBox>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QPointer>
#include <QPushButton>
#include <QScrollBar>
#include <QScreen>
#include <QSlider>
#include <QTreeView>
#include <QVBoxLayout>
#include <algorithm>
#include <cmath>

#include "CardPainter.h"
#include "DialogParts.h"
#include "JournalModel.h"
#include "session/Commands.h"
#include "session/MoveText.h"
#include "session/Program.h"

namespace qv {

namespace {
constexpr int kListTwips = 5000;
constexpr int kFrameMs = 16;

QPushButton* IconButton(const char* name, const QString& key, const QString& tip) {
  auto* b = NamedButton(name, "");
  b->setIcon(CommandIcon(key));
  b->setIconSize(QSize(24, 24));
  b->setToolTip(tip);
  return b;
}
}  // namespace

QuickMoveDialog::QuickMoveDialog(Program& app, QWidget* parent)
    : QDialog(parent),
      app_(app),
      model_(new JournalModel(app, JournalModel::Kind::Moves, this)),
      slider_(new QSlider(Qt::Horizontal)),
      back_(NamedButton("cmdBack", "<")),
      forward_(NamedButton("cmdForward", ">")),
      replayBack_(IconButton("cmdReplayBack", "Back", "Replay Back")),
      replayStop_(IconButton("cmdReplayStop", "Stop", "Replay Stop")),
      replayForward_(IconButton("cmdReplayForward", "Forward", "Replay Forward")),
      more_(NamedButton("cmdMore", "More >>")),
      text1_(new QLabel),
      text2_(new QLabel),
      text3_(new QLabel),
      list_(new QTreeView) {
  setObjectName("frmQuickMove");
  setModal(true);
  slider_->setObjectName("Slider1");
  // The table follows a dragged thumb by itself (Scrub); the change runs on release.
  slider_->setTracking(false);
  text1_->setObjectName("lbText1");
  text2_->setObjectName("lbText2");
  text3_->setObjectName("lbText3");
  list_->setObjectName("lvQuick");
  list_->setModel(model_);
  list_->setItemDelegate(new JournalDelegate(list_));
  list_->setRootIsDecorated(false);
  list_->setUniformRowHeights(true);
  list_->setAllColumnsShowFocus(true);
  list_->setSelectionMode(QAbstractItemView::SingleSelection);
  list_->setEditTriggers(QAbstractItemView::NoEditTriggers);
  const QFontMetrics fm(list_->font());
  const int cardsWidth = fm.horizontalAdvance("Cards") + 24;
  list_->header()->resizeSection(0, fm.horizontalAdvance("Moves 00000") + 16);
  list_->header()->resizeSection(1, fm.horizontalAdvance("Foundation (Pile 00, Card 000)") + 16);
  list_->header()->resizeSection(2, fm.horizontalAdvance("Foundation (Pile 00, Card 000)") + 16);
  list_->header()->resizeSection(3, cardsWidth);
  list_->hide();

  auto* layout = new QVBoxLayout(this);
  upper_ = BuildUpperPart();
  layout->addWidget(upper_);
  layout->addWidget(list_, 1);

  connect(slider_, &QSlider::valueChanged, this, &QuickMoveDialog::SliderChanged);
  connect(slider_, &QSlider::sliderPressed, this, [this] {
    dragFrom_ = app_.cEngine.GetTransID();
    scrub_.start();
  });
  connect(back_, &QPushButton::clicked, this, [this] { slider_->setValue(slider_->value() - 1); });
  connect(forward_, &QPushButton::clicked, this, [this] { slider_->setValue(slider_->value() + 1); });
  connect(replayForward_, &QPushButton::clicked, this, [this] { StartReplay("Forward"); });
  connect(replayBack_, &QPushButton::clicked, this, [this] { StartReplay("Back"); });
  connect(replayStop_, &QPushButton::clicked, this, [this] { StopReplay(app_); });
  connect(more_, &QPushButton::clicked, this, &QuickMoveDialog::ToggleMore);
  connect(list_, &QTreeView::clicked, this, &QuickMoveDialog::RowClicked);
  tmrMove_.setInterval(300);
  tmrReplay_.setInterval(50);
  scrub_.setInterval(kFrameMs);
  scrub_.setTimerType(Qt::PreciseTimer);
  connect(&tmrMove_, &QTimer::timeout, this, &QuickMoveDialog::MoveTick);
  connect(&tmrReplay_, &QTimer::timeout, this, &QuickMoveDialog::ReplayTick);
  connect(&scrub_, &QTimer::timeout, this, &QuickMoveDialog::Scrub);

  // The marked row, the labels and the slider show where the table stands.
  FillSlider();
  ShowTable();
  MoveTick();
  tmrMove_.start();
  FitFolded();
}

QWidget* QuickMoveDialog::BuildUpperPart() {
  auto* upper = new QWidget;
  auto* quick = new QGroupBox("Quick Move");
  auto* quickRow = new QHBoxLayout(quick);
  quickRow->addWidget(back_);
  quickRow->addWidget(forward_);
  auto* replay = new QGroupBox("Replay");
  auto* replayRow = new QHBoxLayout(replay);
  replayRow->addWidget(replayBack_);
  replayRow->addWidget(replayStop_);
  replayRow->addWidget(replayForward_);
  replayStop_->setEnabled(false);
  auto* close = NamedButton("cmdClose", "Close");
  connect(close, &QPushButton::clicked, this, &QDialog::accept);
  auto* side = new QVBoxLayout;
  side->addWidget(more_);
  side->addWidget(close);
  auto* frames = new QHBoxLayout;
  frames->addWidget(quick);
  frames->addWidget(replay);
  frames->addStretch();
  frames->addLayout(side);
  auto* hint = new QLabel("Click on an entry to go to that position.");
  hint->setObjectName("lbHint");
  auto* layout = new QVBoxLayout(upper);
  layout->setContentsMargins(0, 0, 0, 0);
  layout->addWidget(slider_);
  layout->addLayout(frames);
  layout->addWidget(text1_);
  layout->addWidget(text2_);
  layout->addWidget(text3_);
  layout->addWidget(hint);
  return upper;
}

void QuickMoveDialog::FillSlider() {
  const QSignalBlocker quiet(slider_);
  slider_->setRange(0, app_.cEngine.GetTransTop());
  slider_->setValue(app_.cEngine.GetTransID());
}

void QuickMoveDialog::ShowPosition(int id) {
  const PositionTexts t = PositionTextsOf(app_, id);
  text1_->setText(QString::fromStdString(t.text1));
  text2_->setText(QString::fromStdString(t.text2));
  text3_->setText(QString::fromStdString(t.text3));
  setWindowTitle(QString::fromStdString(t.title));
}

void QuickMoveDialog::ShowTable() {
  const int id = app_.cEngine.GetTransID();
  if (!slider_->isSliderDown()) {
    const QSignalBlocker quiet(slider_);
    slider_->setValue(id);
  }
  ShowPosition(id);
  MarkRow(id, true);
  // The buttons follow at once too, not only at the next tick of tmrMove.
  if (!tmrReplay_.isActive()) MoveTick();
}

void QuickMoveDialog::MarkRow(int row, bool select) {
  model_->SetMarked(row);
  if (!select) return;
  const QModelIndex index = model_->index(row, 0);
  list_->setCurrentIndex(index);
  list_->scrollTo(index);
}

// A change of the slider's value: on release of the thumb, a key, a click on the track,
// "<" or ">". A value inside a step goes on to the step's end in the direction the thumb
// went from where the table stood.
void QuickMoveDialog::SliderChanged(int value) {
  Motion::Step step(app_.motion);
  if (!step) return;  // cards move: the change in hand puts the slider right at its end
  scrub_.stop();
  const int from = std::exchange(dragFrom_, -1);
  const bool forward = value > (from >= 0 ? from : app_.cEngine.GetTransID());
  QPointer<QuickMoveDialog> alive(this);
  cEngine& e = app_.cEngine;
  e.MoveTo(value);
  // The thumb walked the table past the place it was dropped at: back to the right side.
  if (alive && (forward ? e.GetTransID() < value : e.GetTransID() > value)) e.MoveTo(value);
  if (alive) ShowTable();
}

void QuickMoveDialog::Scrub() {
  if (!slider_->isSliderDown()) return scrub_.stop();
  const int target = slider_->sliderPosition();
  if (target == app_.cEngine.GetTransID()) return;
  Motion::Step step(app_.motion);
  if (!step) return;
  QPointer<QuickMoveDialog> alive(this);
  app_.cEngine.MoveTo(target, false);
  if (!alive) return;
  ShowPosition(app_.cEngine.GetTransID());
  MarkRow(app_.cEngine.GetTransID(), true);
  app_.surface.sprites.PaintFrame();  // the frame of this walk, paced to the display
}

void QuickMoveDialog::RowClicked(const QModelIndex& index) {
  if (tmrReplay_.isActive() || !index.isValid()) return;
  Motion::Step step(app_.motion);
  if (!step) return;
  QPointer<QuickMoveDialog> alive(this);
  app_.cEngine.MoveTo(index.row());
  if (alive) ShowTable();
}

void QuickMoveDialog::StartReplay(const char* key) {
  ExecCommand(app_, key);
  if (IsReplaying(app_)) ReplayTick();
}

void QuickMoveDialog::MoveTick() {
  back_->setEnabled(slider_->value() != 0);
  replayBack_->setEnabled(slider_->value() != 0);
  forward_->setEnabled(slider_->value() != slider_->maximum());
  replayForward_->setEnabled(slider_->value() != slider_->maximum());
}

void QuickMoveDialog::ReplayTick() {
  // Between two cards of a replay step the cursor may stand inside the step: wait for its end.
  if (!app_.motion.Moving()) ShowTable();
  const bool replaying = IsReplaying(app_);
  for (QWidget* w : std::initializer_list<QWidget*>{slider_, forward_, back_, replayForward_, replayBack_})
    w->setEnabled(!replaying);
  replayStop_->setEnabled(replaying);
  if (replaying) {
    tmrMove_.stop();
    tmrReplay_.start();
    return;
  }
  tmrReplay_.stop();
  tmrMove_.start();
  MoveTick();
}

void QuickMoveDialog::ToggleMore() {
  moreOpen_ = !moreOpen_;
  more_->setText(moreOpen_ ? "<< Less" : "More >>");
  if (!moreOpen_) {
    list_->hide();
    FitFolded();
    return;
  }
  // The list at about 5000 twips of the screen, never past the screen's free height.
  const int listHeight = static_cast<int>(std::lround(kListTwips / 1440.0 * logicalDpiY()));
  const int free = screen() ? screen()->availableGeometry().height() - (frameGeometry().height() - height()) : 4000;
  setMinimumHeight(foldedHeight_ + 80);
  setMaximumHeight(QWIDGETSIZE_MAX);
  list_->show();
  resize(width(), std::min(foldedHeight_ + listHeight, std::max(free, foldedHeight_ + 80)));
  list_->scrollTo(list_->currentIndex());
}

// Folded, the window is exactly its upper part at the user's font size.
void QuickMoveDialog::FitFolded() {
  layout()->activate();
  foldedHeight_ = upper_->sizeHint().height() + layout()->contentsMargins().top() + layout()->contentsMargins().bottom();
  setMinimumHeight(0);
  setFixedHeight(foldedHeight_);
  // As wide as the list's columns, so that unfolding shows whole rows.
  const int wide = list_->header()->length() + list_->verticalScrollBar()->sizeHint().width() + 2 * list_->frameWidth() +
                   layout()->contentsMargins().left() + layout()->contentsMargins().right();
  if (width() < wide) resize(wide, foldedHeight_);
}

}  // namespace qv
