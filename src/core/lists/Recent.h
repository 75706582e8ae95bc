#pragma once

#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "engine/GameNo.h"

namespace qv {

class Program;

// The recent lists of the File menu: 0 played ("Name - Number"), 1 saved, 2 opened (paths).
enum RecentList { kRecentPlayed = 0, kRecentSaved = 1, kRecentOpened = 2 };

// A recently-played entry "Name - Number" read from its last " - ", so a name may hold a
// dash; std::nullopt unless the number is typed digits (what the entry can play).
std::optional<std::pair<std::string, GameNo>> SplitPlayed(const std::string& entry);
// The played entries that play now: their game exists.
std::vector<std::string> PlayableEntries(const Program& app);

// Adds to a list and has the menus rebuilt.
void AddRecent(Program& app, int mType, const std::string& item);
void ClearRecent(Program& app, int mType);
int GetRecentCount(const Program& app, int mType);

// What a recent sub-menu shows: entries whose saved game still reads, or whose game is
// still in the game list; none means the menu says "None".
std::vector<std::string> RecentMenuEntries(const Program& app, int mType);
// The command code of a list's entries: 200 saved, 201 opened, 202 played.
int RecentCode(int mType);
// Plays a recent entry as its code says.
bool PlayRecent(Program& app, int code, const std::string& tag);

}  // namespace qv
