#pragma once

#include <string>

namespace qv {

class Program;

// The first game of a run: a saved game named on the command line, the unfinished game
// of the last run, or else the selection dialog (whose Cancel leaves the table empty).
// Where the unfinished game and a command-line file meet, the user is asked which to
// play, and no answer loses the unfinished game to a bad file.
void FirstGame(Program& app, const std::string& path);

}  // namespace qv
