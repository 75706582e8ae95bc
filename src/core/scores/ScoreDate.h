#pragma once

#include <ctime>
#include <optional>
#include <string>
#include <string_view>

namespace qv {

// A calendar day, read once from a record's date so that filters and periods compare
// whole days and months and never elapsed time (a daylight saving change moves nothing).
struct CivilDate {
  int year = 0, month = 0, day = 0;  // month 1-12, day 1-31
  bool operator==(const CivilDate&) const = default;
};

// The date part of the general date form, with or without its time ("11/17/2026 6:41:26 AM",
// "11/17/2026 18:41:26", "11/17/2026"); std::nullopt when it does not read as a real date.
std::optional<CivilDate> ReadGeneralDate(std::string_view text);
// The local calendar day of a moment.
CivilDate LocalDay(std::time_t t);

// Whole calendar days and months from `from` to `to` (negative when `from` is later).
long DaysBetween(const CivilDate& from, const CivilDate& to);
int MonthsBetween(const CivilDate& from, const CivilDate& to);

// Moves a day back by days, months or years; a month without that day takes its last one.
CivilDate DaysBack(const CivilDate& d, int n);
CivilDate MonthsBack(const CivilDate& d, int n);

// "11/7/2026": the date part of the general date form.
std::string ShortDate(const CivilDate& d);
// "Nov 07", "Nov 26", "2026": a period's label for the units "d", "m" and "yyyy".
std::string PeriodLabel(const CivilDate& d, const std::string& interval);

}  // namespace qv
