#pragma once

#include <string>
#include <string_view>

namespace qv {

// Text files are written as UTF-8; older files may hold Windows-1252 bytes, which a
// reader takes as such so no name turns into garbage.
bool IsValidUtf8(std::string_view s);
// Keeps every well-formed UTF-8 sequence and reads each other byte as Windows-1252;
// `repaired` turns true when a byte had to be read so.
std::string RepairUtf8(std::string_view s, bool& repaired);
inline std::string AsUtf8(std::string_view s) {
  bool repaired = false;
  return RepairUtf8(s, repaired);
}

}  // namespace qv
