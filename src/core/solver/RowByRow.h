#pragma once

#include <chrono>
#include <cstdint>
#include <functional>
#include <stop_token>
#include <string>
#include <vector>

#include "solver/SolverGame.h"

namespace qv {

// What a search that only looks for wins may spend.
struct SearchLimits {
  std::chrono::steady_clock::time_point deadline;
  int64_t positions = 0;  // 0: no limit
  size_t bytes = 0;
  std::stop_token stop;
  const std::function<bool()>* hook = nullptr;  // false stops
};

struct RowByRowResult {
  bool won = false;
  std::vector<SolverMove> moves;  // from the start to a won table
  int64_t positions = 0;
  size_t peakBytes = 0;
  std::string limit;  // set when a limit, not the search, ended it
};

// Looks for a win one row at a time, as a player does: between two rows it searches the
// table's moves best first, then deals from the few best tables it found and goes on
// from each. Passes widen (more positions a row, more tables dealt from) until a win or a
// limit. Running out proves nothing: only a win is an answer.
RowByRowResult WinRowByRow(const SolverGame& g, const SearchLimits& limits);

}  // namespace qv
