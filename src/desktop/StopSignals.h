#pragma once

#include <functional>

namespace qv {

// A desktop session that logs out, or a kill from a terminal, sends SIGTERM or SIGINT:
// the program then stops as if its window were closed, so the game on the table is kept
// for the next start.
void StopOnSignals(std::function<void()> stop);

}  // namespace qv
