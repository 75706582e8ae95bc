#pragma once

#include <string>

namespace qv {

class Program;
struct SavedGame;

// Checks a whole saved game on a scratch table, before anything on the real table changes:
// its game must be one the program can deal, and every record, obeyed as written, must
// keep the table's shape. Empty when the game can be played, else why not.
std::string CheckSavedGame(const Program& app, const SavedGame& game);

}  // namespace qv
