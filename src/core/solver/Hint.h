#pragma once

#include <optional>
#include <string>

#include "solver/Solver.h"
#include "solver/TableVerdict.h"

namespace qv {

// A move told in the player's words, piles counted from 1, with why it is good:
// "Move the 7 of Spades from pile 3 onto the 8 of Hearts on pile 6: it turns up a card".
std::string MoveSentence(const SolverGame& g, const SolverPosition& p, const SolverMove& m, bool guess);

// What Hint tells of a table: a winnable game's next move, that a lost game can no longer
// be won, or, when the search ran out first, its most promising move as a guess.
struct HintAdvice {
  Verdict verdict = Verdict::Unknown;
  std::optional<SolverMove> move;  // in the table's own cells, piles and positions
  std::string text;
};
HintAdvice AdviceFor(const TableCopy& copy, const SolverResult& r);

}  // namespace qv
