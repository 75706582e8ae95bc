#pragma once

#include <string>

#include "solver/SolverGame.h"

namespace qv {

class Program;

// A move told in the player's words, piles counted from 1, with why it is good:
// "Move the 7 of Spades from pile 3 onto the 8 of Hearts on pile 6: it turns up a card".
std::string MoveSentence(const SolverGame& g, const SolverPosition& p, const SolverMove& m, bool guess);

// Hint: searches the table as it lies and tells the next move of a win; when the game
// can no longer be won, says so; when the search ran out first, offers its best move as a guess.
void ShowHint(Program& app);

}  // namespace qv
