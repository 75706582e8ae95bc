#pragma once

#include <string>
#include <vector>

#include "session/SavedGameFile.h"

namespace qv {

class Program;

// Copies of ended games in the auto-save folder: "Name-Number" with "-(n)" when taken,
// ".vq1" for a won game and ".vq0" for one given up. Nothing is ever overwritten.
// Writes nothing when the Options turned that kind off, unless `always` (a game that must
// not be lost). False, with a message shown, when the copy could not be written.
bool AutoSaveGame(Program& app, bool Won, bool always = false);
// Keeps a saved game that is not on the table (the one a crashed run left) as an
// incomplete copy, under the name its header gives. False, with a message shown, when the
// file does not read or the copy could not be written.
bool AutoSaveFile(Program& app, const std::string& path);
// The copies of a kind whose header reads, full paths in the folder's order.
std::vector<std::string> GetAutoSaveFiles(const Program& app, bool Won);
// Asks first; deletes every copy of a kind. True when it did.
bool EmptyAutoSave(Program& app, bool Won);
// The saved games directly in the saved-games folder whose header reads.
std::vector<std::string> GetSavedFiles(const Program& app);

// A saved game of a list, with the header it was listed by.
struct ListedGame {
  std::string path;
  GameHeader header;
};
// Files of a folder whose name ends in one of the extensions (any case; none: every file)
// and whose header reads, in the folder's order; the rest are passed over without a word.
// Each header is read once, here, for whatever shows the list.
std::vector<ListedGame> ListGames(const std::string& folder, const std::vector<std::string>& extensions);
std::vector<ListedGame> ListAutoSaves(const Program& app, bool Won);
std::vector<std::string> Paths(const std::vector<ListedGame>& games);
// The first free path "stem" + suffix(i) + ext in a folder, i counting from 0 (no suffix).
std::string FreeName(const std::string& folder, const std::string& stem, const std::string& ext,
                     std::string (*suffix)(int));

}  // namespace qv
