#pragma once

#include <string_view>

namespace qv {

// The program's one check of the characters of a name that becomes a file name (a
// favourite, a created game, a colour scheme): none of \ / : * ? " < > | may stand in it.
// Everything else passes, blanks included.
inline bool IsValidName(std::string_view name) { return name.find_first_of("\\/:*?\"<>|") == std::string_view::npos; }

}  // namespace qv
