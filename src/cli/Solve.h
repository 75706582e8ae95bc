#pragma once

#include <string>
#include <vector>

namespace qv {

struct SolverResult;

// A search's answer as JSON fields: verdict, moves, positions, ms, peak_mb, limit.
std::string ResultFields(const SolverResult& r);

// `solve GAME FROM TO [options]` and `solve FILE [options]`: one JSON line per game.
int SolveCommand(const std::vector<std::string>& args);

}  // namespace qv
