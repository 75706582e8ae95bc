#include "BackToWinnable.h"

#include <QScopedValueRollback>
#include <atomic>

#include "MainWindow.h"
#include "SolverProgress.h"
#include "session/Program.h"
#include "solver/WinnableBack.h"

namespace qv {

void BackToWinnable(MainWindow& main) {
  static bool searching = false;
  if (searching) return;
  const QScopedValueRollback<bool> busy(searching, true);
  Program& app = main.app();
  if (!TableAtRest(app)) return;
  const std::vector<TableCopy> at = PositionsAtStepEnds(app);
  const uint64_t before = PositionKey(app);
  std::stop_source stop;
  std::atomic<int> asked{0};
  std::atomic<bool> dealLost{false};  // the deal itself proved lost: there is nothing to go back to
  const int found = RunWithProgress(
      main, "Looking for the last position from which the game can be won...", "frmBackToWinnable", 0, stop, asked,
      [&, budget = SolverBudgetOf(app)] {
        return LastWinnable(
            at,
            [&](const TableCopy& c) {
              ++asked;
              const Verdict v = SolveCopy(c, budget, stop.get_token()).verdict;
              if (&c == &at.front() && v == Verdict::Lost) dealLost = true;
              return v;
            },
            stop.get_token());
      });
  if (stop.stop_requested()) return;
  if (found < 0 && dealLost) {
    app.MsgBox("This game cannot be won: it was lost from the deal.", MsgStyle::Information);
    return;
  }
  if (found < 0) {
    app.MsgBox("No earlier position of this game was proved winnable in the time allowed for each.",
               MsgStyle::Information);
    return;
  }
  const int transID = static_cast<int>(at[found].key);
  if (transID == app.cEngine.GetTransID()) {
    app.MsgBox("The game can still be won from here.", MsgStyle::Information);
    return;
  }
  // The table must be the one the search was made on.
  Motion::Step step(app.motion);
  if (step && PositionKey(app) == before) app.cEngine.MoveTo(transID);
}

}  // namespace qv
