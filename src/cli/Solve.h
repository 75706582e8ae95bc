#pragma once

#include <string>
#include <vector>

namespace qv {

// `solve GAME FROM TO [options]` and `solve FILE [options]`: one JSON line per game.
int SolveCommand(const std::vector<std::string>& args);

}  // namespace qv
