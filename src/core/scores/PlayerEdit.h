#pragma once

#include <string>

namespace qv {

class Program;

// What the Players window does to the list, each returning the message that refuses it
// (empty when done). A player's score file follows a rename and goes with a deletion.

// "Maximum 20 Players Only!" once twenty are there; the name goes to the first free slot.
std::string AddPlayer(Program& app, const std::string& name);
// The name in any slot (the player's own included) is "Player Exists !".
std::string RenamePlayer(Program& app, const std::string& oldName, const std::string& newName);
// Closes the gap the player leaves; the current player cannot be deleted.
std::string DeletePlayer(Program& app, const std::string& name);
// The name as the name box checks it: "Please Enter a Valid Name", "Player Exists !" or empty.
std::string CheckNewName(const Program& app, const std::string& name);

}  // namespace qv
