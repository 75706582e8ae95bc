#pragma once

#include <optional>
#include <string>

#include "engine/GameNo.h"

namespace qv {

class Program;

// "0 and 999,999": the range the number dialog offers, grouped by thousands.
std::string NumberRangeText(const Program& app);
// The number as it goes on to the deal (typed, blanks around dropped), or std::nullopt when
// it is refused. The test is made in a 32-bit float, so near the top of a wide range a
// number can round up to the largest and be refused with it.
std::optional<GameNo> AcceptedGameNo(const Program& app, const std::string& text);

}  // namespace qv
