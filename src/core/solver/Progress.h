#pragma once

#include "solver/SolverGame.h"

namespace qv {

// How far a position has come, for ordering a search: sets out above all, then cards
// turned up, piles emptied and cards lying on a card they may move on with; a card
// dealt from the Stock costs a little, so rows come when the table has nothing better.
int Progress(const SolverGame& g, const SolverPosition& p);

}  // namespace qv
