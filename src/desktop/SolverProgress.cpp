#include "SolverProgress.h"

#include <QEventLoop>
#include <QFutureWatcher>
#include <QProgressDialog>
#include <QTimer>
#include <QtConcurrent/QtConcurrent>

#include "MainWindow.h"
#include "session/Program.h"

namespace qv {

int RunWithProgress(MainWindow& main, const QString& text, const QString& objectName, int maximum,
                    std::stop_source& stop, const std::atomic<int>& done, const std::function<int()>& job) {
  QFutureWatcher<int> watcher;
  QEventLoop wait;
  QObject::connect(&watcher, &QFutureWatcher<int>::finished, &wait, &QEventLoop::quit);
  watcher.setFuture(QtConcurrent::run(job));
  QProgressDialog progress(text, "Cancel", 0, maximum, &main);
  progress.setObjectName(objectName);
  progress.setWindowTitle(QString::fromStdString(main.app().cData.ProdName()));
  progress.setWindowModality(Qt::WindowModal);
  progress.setMinimumDuration(1000);
  progress.setAutoReset(false);
  QObject::connect(&progress, &QProgressDialog::canceled, [&] { stop.request_stop(); });
  QTimer tick;
  QObject::connect(&tick, &QTimer::timeout, [&] { progress.setValue(done); });
  tick.start(100);
  // The window goes on painting; the table stays as it is until the job is done.
  if (!watcher.isFinished()) wait.exec();
  tick.stop();
  progress.disconnect();  // closing the box would count as Cancel
  progress.close();
  return watcher.result();
}

}  // namespace qv
