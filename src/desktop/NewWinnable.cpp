#include "NewWinnable.h"

#include <QElapsedTimer>
#include <QEventLoop>
#include <QFutureWatcher>
#include <QScopedValueRollback>
#include <QProgressDialog>
#include <QTimer>
#include <QtConcurrent/QtConcurrent>
#include <atomic>

#include "MainWindow.h"
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
  QFutureWatcher<int> watcher;
  QEventLoop wait;
  QObject::connect(&watcher, &QFutureWatcher<int>::finished, &wait, &QEventLoop::quit);
  watcher.setFuture(QtConcurrent::run([&, budget = SolverBudgetOf(app)] {
    return FirstWinnable(games, numbers, budget, stop.get_token(), [&](int i) { tried = i; });
  }));
  QProgressDialog progress(QString("Looking for a winnable game of %1...").arg(QString::fromStdString(game)),
                           "Cancel", 0, static_cast<int>(numbers.size()), &main);
  progress.setObjectName("frmNewWinnable");
  progress.setWindowTitle(QString::fromStdString(app.cData.ProdName()));
  progress.setWindowModality(Qt::WindowModal);
  progress.setMinimumDuration(1000);
  progress.setAutoReset(false);
  QObject::connect(&progress, &QProgressDialog::canceled, [&] { stop.request_stop(); });
  QTimer tick;
  QObject::connect(&tick, &QTimer::timeout, [&] { progress.setValue(tried); });
  tick.start(100);
  // The window goes on painting; the table stays as it is until a number is found.
  if (!watcher.isFinished()) wait.exec();
  tick.stop();
  progress.disconnect();  // closing the box would count as Cancel
  progress.close();
  const int found = watcher.result();
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
