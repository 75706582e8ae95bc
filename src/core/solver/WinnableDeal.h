#pragma once

#include <cstdint>
#include <functional>
#include <stop_token>
#include <string>
#include <vector>

#include "engine/GameNo.h"
#include "solver/Solver.h"

namespace qv {

class Program;
class cGames;

constexpr int kWinnableTries = 200;  // game numbers tried before New Winnable Game gives up

// Drawn game numbers whose deals all differ: the deal depends on 16 bits of the number
// only, so a number that repeats a deal already drawn is skipped.
std::vector<GameNo> DrawDistinctDeals(Program& app, int count);

// The game New Winnable Game deals: the one on the table, or the last one played.
std::string WinnableGameName(const Program& app);

// The definition of a game by name, made aside from the table; false for an unknown name.
bool DefinitionOf(Program& app, const std::string& game, cGames& out);

// Solves each number's opening deal in turn and answers the index of the first proved
// winnable, or -1. `progress(i)` is told before number i is tried; the stop ends it.
// Reads nothing but its arguments, so it may run on a worker thread.
int FirstWinnable(const cGames& games, const std::vector<GameNo>& numbers, const SolverBudget& budget,
                  std::stop_token stop, const std::function<void(int)>& progress);

}  // namespace qv
