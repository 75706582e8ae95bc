#pragma once

#include <string>
#include <vector>

namespace qv {

class Program;
class CliDialogs;

// The created-game commands of quorvale-cli; each returns the tool's exit status.
int PrintGames(Program& app);
int PrintRules(Program& app, const std::string& name);
// NAME PILES ORDER SPACE AK SUITS MORDER [--overwrite], as the editor's form would save it.
int CreateGame(Program& app, CliDialogs& dialogs, const std::vector<std::string>& args);
int DeleteGame(Program& app, CliDialogs& dialogs, const std::string& name);

}  // namespace qv
