#pragma once

#include <string>

namespace qv {

class Program;

// A won game. Recording it comes before the user sees "Congrats": the clock stops, the
// game's kept copy stops counting, and the win goes to the auto-save folder, the run's list
// and the player's score file. A won game of the pending list is gone for good.
void RecordWin(Program& app);
// "<folder>/<GameName>-<GameNo>.vq1", where the finish proposes to keep the game.
std::string FinishSavePath(const Program& app, const std::string& folder);
std::string FinishSavePath(const Program& app);
// Closing "Congrats" by any means: keeps the game where `savePath` says when "Save this
// Game" is on, adds the deal to the favourites when "Add this Game to Favorites" is, then
// clears the table. A write that fails costs the copy and nothing else.
void CloseFinish(Program& app, const std::string& savePath);

}  // namespace qv
