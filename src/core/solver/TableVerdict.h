#pragma once

#include <cstdint>
#include <stop_token>

#include "engine/Table.h"
#include "engine/cGames.h"
#include "solver/Solver.h"

namespace qv {

class Program;

// What a background search needs of the game on the table, copied at rest so that the
// search never touches the live objects: the plain table, the definition, the journal's
// room and the key of the position it was taken at.
struct TableCopy {
  Table table;
  cGames games;
  int room = 0;
  uint64_t key = 0;
};

// Changes whenever the table may have changed: a move, an undo, a new game.
uint64_t PositionKey(const Program& app);
// Is the table still, with a game being played (no drag, no moving cards, no replay)?
bool TableAtRest(const Program& app);
TableCopy CopyTable(const Program& app);

// The solver's settings, mended when read: the indicator on or off, the seconds (1-60)
// and the megabytes (64-2048) a search may take.
bool SolverIndicatorOn(const Program& app);
SolverBudget SolverBudgetOf(const Program& app);

SolverResult SolveCopy(const TableCopy& copy, const SolverBudget& budget, std::stop_token stop);

}  // namespace qv
