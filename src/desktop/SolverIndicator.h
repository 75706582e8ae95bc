#pragma once

#include <QFutureWatcher>
#include <QObject>
#include <functional>
#include <optional>
#include <stop_token>

#include "solver/TableVerdict.h"

class QLabel;
class QMenuBar;

namespace qv {

class Program;

// The quiet word in the menu bar's corner: is the game on the table still winnable?
// Each time the table comes to rest in a new position, a copy of it is searched on a
// worker thread; any change of the table stops that search, and an answer that comes
// back for a position no longer on the table is dropped. The window never waits.
class SolverIndicator : public QObject {
  Q_OBJECT
 public:
  using SolveFn = std::function<SolverResult(const TableCopy&, const SolverBudget&, std::stop_token)>;

  SolverIndicator(Program& app, QMenuBar* bar, QObject* parent = nullptr);
  ~SolverIndicator() override;

  // The main timer's tick: starts a search for a new position at rest.
  void Tick();
  // Stops the search under way, if any (a change of table, the stop of the program).
  void Stop();
  // "thinking", "winnable", "lost", "unknown", or empty when there is nothing to tell.
  QString State() const;
  // The answer found for the position of `key`, if the last search was of it and ended.
  std::optional<SolverResult> AnswerFor(uint64_t key) const;
  // What searches a position; tests put a fake here.
  SolveFn solve = SolveCopy;

 private:
  void Show(const QString& state);
  void Finished();

  Program& app_;
  QLabel* label_;
  QFutureWatcher<SolverResult> watcher_;
  std::stop_source stop_;
  uint64_t asked_ = 0;  // the key of the position last handed over
  std::optional<SolverResult> answer_;  // for asked_
  bool running_ = false;
};

}  // namespace qv
