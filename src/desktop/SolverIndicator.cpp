#include "SolverIndicator.h"

#include <QLabel>
#include <QMenuBar>
#include <QtConcurrent/QtConcurrent>
#include <algorithm>

#include "session/Program.h"

namespace qv {

SolverIndicator::SolverIndicator(Program& app, QMenuBar* bar, QObject* parent)
    : QObject(parent), app_(app), label_(new QLabel(bar)) {
  label_->setObjectName("SolverIndicator");
  label_->setContentsMargins(8, 0, 8, 0);
  label_->setToolTip(tr("Is the game on the table winnable? Searched in the background"));
  // As wide as the longest word from the start: the menu bar does not make room for a
  // corner widget that grows later.
  int width = 0;
  for (const char* word : {"thinking", "winnable", "unknown", "lost"})
    width = std::max(width, label_->fontMetrics().horizontalAdvance(tr(word)));
  label_->setMinimumWidth(width + 16);
  bar->setCornerWidget(label_, Qt::TopRightCorner);
  connect(&watcher_, &QFutureWatcher<SolverResult>::finished, this, &SolverIndicator::Finished);
}

SolverIndicator::~SolverIndicator() {
  Stop();
  // The search sees its stop within a millisecond; it must not outlive what it reads.
  watcher_.waitForFinished();
}

void SolverIndicator::Stop() {
  if (!running_) return;
  stop_.request_stop();
  running_ = false;
}

void SolverIndicator::Show(const QString& state) {
  if (label_->text() != state) label_->setText(state);
}

QString SolverIndicator::State() const { return label_->text(); }

std::optional<SolverResult> SolverIndicator::AnswerFor(uint64_t key) const {
  return key == asked_ ? answer_ : std::nullopt;
}

void SolverIndicator::Tick() {
  if (!SolverIndicatorOn(app_)) {
    Stop();
    label_->setVisible(false);
    return;
  }
  label_->setVisible(true);
  const uint64_t key = PositionKey(app_);
  if (key == asked_) return;
  Stop();
  if (!TableAtRest(app_)) {
    if (app_.cGamePlay.Game_Status() != 1) Show({});
    return;
  }
  asked_ = key;
  answer_.reset();
  stop_ = std::stop_source();
  running_ = true;
  Show(tr("thinking"));
  watcher_.setFuture(QtConcurrent::run(solve, CopyTable(app_), SolverBudgetOf(app_), stop_.get_token()));
}

void SolverIndicator::Finished() {
  const SolverResult r = watcher_.result();
  // An answer for a position that is gone is of no use; the next tick asks again.
  if (!running_ || PositionKey(app_) != asked_) return;
  running_ = false;
  answer_ = r;
  Show(tr(VerdictName(r.verdict)));
}

}  // namespace qv
