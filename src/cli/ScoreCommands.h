#pragma once

#include <string>
#include <vector>

namespace qv {

class Program;

// The score store from the command line, as JSON: scores, top, gamestat, log, players,
// export. `args` holds the command and its options; the result is the exit status.
int ScoreCommand(Program& app, const std::vector<std::string>& args);
bool IsScoreCommand(const std::string& command);

// The games of this run and their totals (the script command `session`).
std::string SessionJson(const Program& app);

}  // namespace qv
