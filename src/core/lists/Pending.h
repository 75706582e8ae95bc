#pragma once

#include <string>
#include <vector>

#include "lists/AutoSave.h"

namespace qv {

class Program;

// Games set aside to finish later: saved games in the pending folder, which is the list.

// The command "Move to Pending List": writes the game whole to a free name, and only then
// clears the table. A game that came from the list is refused with the program's message.
void MoveToPending(Program& app);
// Puts a pending game back under its old file name. False, with a message shown, when
// the file could not be written; the game then stays where it is.
bool SavePendingFile(Program& app, const std::string& PendFile);
// Every file of the pending folder whose header reads, whatever its extension.
// The pending file of the game on the table is left out of both.
std::vector<std::string> GetPendingFiles(const Program& app);
std::vector<ListedGame> ListPending(const Program& app);

// One entry of the pending menu: "<file name less extension> (<n>% Completed)". While a
// game is taken up from the list its entry says " - (Now Playing)" and is disabled; once
// it runs, its file is its live copy and the menu leaves it out.
struct PendingEntry {
  std::string caption;
  std::string path;
  bool playing = false;
};
std::vector<PendingEntry> PendingMenuEntries(const Program& app);

}  // namespace qv
