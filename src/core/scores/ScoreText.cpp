#include "scores/ScoreText.h"

#include <cstdio>

namespace qv {

std::string FormatSeconds(long long s) {
  if (s < 0) return std::string(1, '-').append(FormatSeconds(-s));
  char buf[32];
  std::snprintf(buf, sizeof buf, "%lld:%02lld:%02lld", s / 3600, (s / 60) % 60, s % 60);
  return buf;
}

std::string StatusText(int Won) { return Won == 1 ? "Won" : "Lost"; }

}  // namespace qv
