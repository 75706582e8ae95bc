#pragma once

#include <string>

namespace qv {

class Program;

// The favourites tree as JSON: {"folders":[{"name","path","games":[...]}],"games":[...]},
// each game with its file and its record.
std::string FavoritesJson(const Program& app);
// A category of the selection as it fills: {"root":{...},"selected":KEY}; with an item,
// that entry's details and rules in short: {"details":[...],"rules":[...]}.
std::string SelectJson(Program& app, const std::string& category);
std::string SelectItemJson(Program& app, const std::string& category, const std::string& item);

}  // namespace qv
