#pragma once

#include <string>

namespace qv {

class Program;

// A text as a JSON string.
std::string JsonText(const std::string& s);
// The table and the session as one JSON object, the shape every command prints.
std::string StateJson(const Program& app);
// The Moves Manager's rows, position 0 first, as a JSON array of objects.
std::string MovesJson(const Program& app);

}  // namespace qv
