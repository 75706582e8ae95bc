#pragma once

#include <functional>

namespace qv {

// The start of every benchmark program that runs the window's code: a temporary home of
// its own (settings, games, cache and runtime folder, so the user's stay out of reach),
// the offscreen platform unless another is set, Qt's size-hint chatter left out, and one
// QApplication. `own`, when given, runs once the application exists and may end the
// program with its own status instead of the benchmarks (a mode of the program's own);
// it answers -1 to go on.
int RunQtBenchmarks(int argc, char** argv, const std::function<int(int, char**)>& own = {});

}  // namespace qv
