#include "engine/GameNo.h"

#include <charconv>

namespace qv {

double GameNo::Value() const {
  double v = 0;
  // from_chars ignores the locale, which a desktop program may have set to use ','.
  const char* first = text_.data();
  const char* last = first + text_.size();
  if (auto [ptr, ec] = std::from_chars(first, last, v); ec != std::errc() || ptr != last) return 0;
  return v;
}

bool GameNo::IsDigitText(const std::string& s) {
  int digits = 0, dots = 0;
  for (char c : s) {
    if (c >= '0' && c <= '9') ++digits;
    else if (c == '.') ++dots;
    else return false;
  }
  return digits > 0 && dots <= 1;
}

bool GameNo::IsNumberText(const std::string& s) {
  return !s.empty() && IsDigitText(s[0] == '-' ? s.substr(1) : s);
}

}  // namespace qv
