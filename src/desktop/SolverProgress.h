#pragma once

#include <QString>
#include <atomic>
#include <functional>
#include <stop_token>

namespace qv {

class MainWindow;

// Runs a long solver job on a worker while the window goes on painting. A box with Cancel
// shows after a second, counting `done` up to `maximum` (0: no count); Cancel asks `stop`.
// Answers the job's result.
int RunWithProgress(MainWindow& main, const QString& text, const QString& objectName, int maximum,
                    std::stop_source& stop, const std::atomic<int>& done, const std::function<int()>& job);

}  // namespace qv
