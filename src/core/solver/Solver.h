#pragma once

#include <cstdint>
#include <functional>
#include <optional>
#include <stop_token>
#include <string>
#include <vector>

#include "solver/SolverGame.h"

namespace qv {

class Table;
class cGames;

enum class Verdict { Unknown, Winnable, Lost };
const char* VerdictName(Verdict v);

// How far a search may go. 0 ms answers "unknown" at once; positions 0 has no limit.
struct SolverBudget {
  int64_t ms = 10000;
  int64_t mb = 512;
  int64_t positions = 0;
};

struct SolverResult {
  Verdict verdict = Verdict::Unknown;
  std::vector<SolverMove> solution;  // a winnable game's moves, replayed to a won table
  int64_t positions = 0;             // positions searched
  int64_t ms = 0;
  double peakMb = 0;
  std::string limit;                 // what ran out first for "unknown": time, memory, positions, stop
};

// Searches every position reachable from the game's start by the moves the pointer
// accepts. "winnable" comes with a solution checked move by move; "lost" only when the
// search ran out of positions, not of budget. The stop token and the node hook (false
// stops) are asked at every position, so a stop is seen at once.
SolverResult Solve(const SolverGame& game, const SolverBudget& budget, std::stop_token stop = {},
                   const std::function<bool()>& nodeHook = {});

// The table as it lies, with the journal's room left.
SolverResult SolveTable(const Table& t, const cGames& g, int room, const SolverBudget& budget,
                        std::stop_token stop = {});

// The move a search tries first where it stands: the one that makes the most progress,
// a row only when nothing else moves. None when no move is left.
std::optional<SolverMove> BestMove(const SolverGame& game, const SolverPosition& p);

// Is the solution a list of moves, each offered where it is made, that ends on a won table?
bool ReplaysToWin(const SolverGame& game, const std::vector<SolverMove>& solution);

}  // namespace qv
