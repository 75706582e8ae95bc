#pragma once

#include "solver/SolverGame.h"

namespace qv {

// What a table's progress counts: an empty pile, a card face down (against), a card lying
// on one it may move on with.
struct ProgressWeights {
  int empty = 60;
  int faceDown = 100;
  int link = 12;
};

// How far a position has come, for ordering a search: sets out above all, then cards
// turned up, piles emptied and cards lying on a card they may move on with; a card
// dealt from the Stock costs a little, so rows come when the table has nothing better.
int Progress(const SolverGame& g, const SolverPosition& p, const ProgressWeights& w = {});

}  // namespace qv
