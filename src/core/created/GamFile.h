#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace qv {

class cCustom;

// A created game as its file holds it: "<name>.gam", the quoted name on the first line and
// HPiles, HOrder, HSpace, HAK, HMulti, Suits, MOrder on the second.
struct GamRules {
  std::string GameName;
  int16_t HPiles = 0, HOrder = 0, HSpace = 0, HAK = 0, HMulti = 0, Suits = 0, MOrder = 0;
};

constexpr std::string_view kGamExt = ".gam";

std::string FormatGamFile(const cCustom& c);
// Only a name and seven whole numbers that describe a table read; anything else is no game.
std::optional<GamRules> ParseGamFile(std::string_view text);
// The game in a file; std::nullopt for a file that is missing, far too large or no game.
std::optional<GamRules> ReadGamFile(const std::string& path);
// Whether the files made from a name (its .gam, its saved and auto-saved games, their
// temporary files) stay within the file system's limit on a file name, and whether it can
// stand on one line of its file.
bool GameNameFits(std::string_view name);

// The files of a game in a folder: "<name>" and the extension in any case, the exact
// ".gam" first. A missing folder has none.
std::vector<std::string> GamFilesOf(const std::string& folder, const std::string& name);
// The names of the created games whose files read, each once, sorted ignoring case so
// that their ids stay put from one run to the next. The folder is only read, never made.
std::vector<std::string> ListGamNames(const std::string& folder);

}  // namespace qv
