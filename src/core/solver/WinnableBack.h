#pragma once

#include <functional>
#include <stop_token>
#include <vector>

#include "solver/TableVerdict.h"

namespace qv {

class Program;

// The table as it lay at the end of every step of the journal up to the cursor, from the
// deal on: what Back to Last Winnable Position chooses from. Each copy's key is its
// journal position. Built by playing the records again on a plain table.
std::vector<TableCopy> PositionsAtStepEnds(const Program& app);

// Along legal play a game stays winnable until a step loses it, and stays lost after: so
// the last winnable position is found by halving, each verdict a search of its own. An
// "unknown" counts as not proved. Answers the index of the last position proved winnable,
// or -1. `verdict` searches one position (SolveCopy with a budget, in the program); it is
// asked about the last position first, then about as few others as halving needs.
int LastWinnable(const std::vector<TableCopy>& at, const std::function<Verdict(const TableCopy&)>& verdict,
                 std::stop_token stop);

}  // namespace qv
