#pragma once

#include <cstdint>
#include <string>

namespace qv {

// Seconds as "h:mm:ss". Hours are not wrapped: 90000 s is "25:00:00".
std::string FormatSeconds(long long seconds);
// "Won" for 1, "Lost" for anything else.
std::string StatusText(int Won);

}  // namespace qv
