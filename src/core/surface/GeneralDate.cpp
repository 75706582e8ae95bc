#include <cstdio>

#include "surface/IClock.h"

namespace qv {

std::string GeneralDate(std::time_t t) {
  std::tm tm{};
  localtime_r(&t, &tm);
  const int hour12 = tm.tm_hour % 12 == 0 ? 12 : tm.tm_hour % 12;
  char buf[48];
  std::snprintf(buf, sizeof buf, "%d/%d/%d %d:%02d:%02d %s", tm.tm_mon + 1, tm.tm_mday, tm.tm_year + 1900,
                hour12, tm.tm_min, tm.tm_sec, tm.tm_hour < 12 ? "AM" : "PM");
  return buf;
}

}  // namespace qv
