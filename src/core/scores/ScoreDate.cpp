#include "scores/ScoreDate.h"

#include <charconv>
#include <cstdio>

namespace qv {

namespace {

bool IsLeap(int y) { return (y % 4 == 0 && y % 100 != 0) || y % 400 == 0; }

int DaysInMonth(int y, int m) {
  static constexpr int kDays[] = {31, 28, 31, 30, 31, 30, 31, 31, 30, 31, 30, 31};
  return m == 2 && IsLeap(y) ? 29 : kDays[m - 1];
}

// Days since 1970-01-01 of a proleptic Gregorian date (Howard Hinnant's days_from_civil).
long DayNumber(const CivilDate& d) {
  const int y = d.year - (d.month <= 2);
  const long era = (y >= 0 ? y : y - 399) / 400;
  const unsigned yoe = static_cast<unsigned>(y - era * 400);
  const unsigned doy = (153 * (d.month + (d.month > 2 ? -3 : 9)) + 2) / 5 + d.day - 1;
  const unsigned doe = yoe * 365 + yoe / 4 - yoe / 100 + doy;
  return era * 146097 + static_cast<long>(doe) - 719468;
}

CivilDate FromDayNumber(long z) {
  z += 719468;
  const long era = (z >= 0 ? z : z - 146096) / 146097;
  const unsigned doe = static_cast<unsigned>(z - era * 146097);
  const unsigned yoe = (doe - doe / 1460 + doe / 36524 - doe / 146096) / 365;
  const unsigned doy = doe - (365 * yoe + yoe / 4 - yoe / 100);
  const unsigned mp = (5 * doy + 2) / 153;
  const int day = static_cast<int>(doy - (153 * mp + 2) / 5 + 1);
  const int month = static_cast<int>(mp < 10 ? mp + 3 : mp - 9);
  return {static_cast<int>(yoe + era * 400) + (month <= 2), month, day};
}

// Reads a whole number at `at` and moves past it; false when there is none.
bool ReadNumber(std::string_view s, size_t& at, int& out) {
  const char* first = s.data() + at;
  const auto [end, ec] = std::from_chars(first, s.data() + s.size(), out);
  if (ec != std::errc() || end == first || end - first > 4) return false;
  at = static_cast<size_t>(end - s.data());
  return true;
}

bool Expect(std::string_view s, size_t& at, char c) {
  if (at >= s.size() || s[at] != c) return false;
  ++at;
  return true;
}

// " h:mm:ss AM", " h:mm:ss PM" or " H:mm:ss", checked and then let go: only the day counts.
bool ReadTime(std::string_view s, size_t at) {
  int h = 0, m = 0, sec = 0;
  if (!Expect(s, at, ' ') || !ReadNumber(s, at, h) || !Expect(s, at, ':') || !ReadNumber(s, at, m) ||
      !Expect(s, at, ':') || !ReadNumber(s, at, sec) || m > 59 || sec > 59)
    return false;
  if (at == s.size()) return h <= 23;
  const std::string_view rest = s.substr(at);
  return (rest == " AM" || rest == " PM") && h >= 1 && h <= 12;
}

constexpr const char* kMonths[] = {"Jan", "Feb", "Mar", "Apr", "May", "Jun", "Jul", "Aug", "Sep", "Oct", "Nov", "Dec"};

}  // namespace

std::optional<CivilDate> ReadGeneralDate(std::string_view text) {
  CivilDate d;
  size_t at = 0;
  if (!ReadNumber(text, at, d.month) || !Expect(text, at, '/') || !ReadNumber(text, at, d.day) ||
      !Expect(text, at, '/') || !ReadNumber(text, at, d.year))
    return std::nullopt;
  if (d.year < 100 || d.month < 1 || d.month > 12 || d.day < 1 || d.day > DaysInMonth(d.year, d.month))
    return std::nullopt;
  if (at != text.size() && !ReadTime(text, at)) return std::nullopt;
  return d;
}

CivilDate LocalDay(std::time_t t) {
  std::tm tm{};
  localtime_r(&t, &tm);
  return {tm.tm_year + 1900, tm.tm_mon + 1, tm.tm_mday};
}

long DaysBetween(const CivilDate& from, const CivilDate& to) { return DayNumber(to) - DayNumber(from); }

int MonthsBetween(const CivilDate& from, const CivilDate& to) {
  return (to.year * 12 + to.month) - (from.year * 12 + from.month);
}

CivilDate DaysBack(const CivilDate& d, int n) { return FromDayNumber(DayNumber(d) - n); }

CivilDate MonthsBack(const CivilDate& d, int n) {
  const int index = d.year * 12 + (d.month - 1) - n;
  CivilDate r{index / 12, index % 12 + 1, d.day};
  if (r.day > DaysInMonth(r.year, r.month)) r.day = DaysInMonth(r.year, r.month);
  return r;
}

std::string ShortDate(const CivilDate& d) {
  return std::to_string(d.month) + "/" + std::to_string(d.day) + "/" + std::to_string(d.year);
}

std::string PeriodLabel(const CivilDate& d, const std::string& interval) {
  char buf[16];
  if (interval == "d") std::snprintf(buf, sizeof buf, "%s %02d", kMonths[d.month - 1], d.day);
  else if (interval == "m") std::snprintf(buf, sizeof buf, "%s %02d", kMonths[d.month - 1], d.year % 100);
  else std::snprintf(buf, sizeof buf, "%d", d.year);
  return buf;
}

}  // namespace qv
