#include "NewWinnable.h"

#include <QElapsedTimer>
#include <QScopedValueRollback>
#include <atomic>

#include "MainWindow.h"
#include "SolverProgress.h"
#include "engine/cGames.h"
#include "session/Program.h"
#include "solver/TableVerdict.h"
#include "solver/WinnableDeal.h"

namespace qv {

void NewWinnableGame(MainWindow& main) {
  // F5 again while numbers are being tried would start a second hunt inside the first.
  static bool hunting = false;
  if (hunting) return;
  const QScopedValueRollback<bool> busy(hunting, true);
  Program& app = main.app();
  const std::string game = WinnableGameName(app);
  cGames games;
  if (!DefinitionOf(app, game, games)) return;
  const std::vector<GameNo> numbers = DrawDistinctDeals(app, kWinnableTries);
  std::stop_source stop;
  std::atomic<int> tried{0};
  const int found = RunWithProgress(
      main, QString("Looking for a winnable game of %1...").arg(QString::fromStdString(game)), "frmNewWinnable",
      static_cast<int>(numbers.size()), stop, tried, [&, budget = SolverBudgetOf(app)] {
        return FirstWinnable(games, numbers, budget, stop.get_token(), [&](int i) { tried = i; });
      });
  if (found < 0 && stop.stop_requested()) return;
  if (found < 0) {
    app.MsgBox("No winnable game was found among " + std::to_string(numbers.size()) +
                   " game numbers in the time allowed for each. Try again, or allow more time in Options, Solver.",
               MsgStyle::Information);
    return;
  }
  Motion::Step step(app.motion);
  if (step) app.cGamePlay.PlayNumber(game, numbers[found]);
}

}  // namespace qv
