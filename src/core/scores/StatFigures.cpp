#include "scores/StatFigures.h"

#include <cstdint>
#include <cstdlib>

#include "scores/ScoreText.h"
#include "scores/cScore.h"

namespace qv {

namespace {

// num / den rounded to a whole number, an exact half to the even one.
int64_t RoundedQuotient(int64_t num, int64_t den) {
  if (den < 0) num = -num, den = -den;
  int64_t q = num / den, r = num % den;
  if (r < 0) --q, r += den;  // floor division, so the remainder is never negative
  if (2 * r > den || (2 * r == den && q % 2 != 0)) ++q;
  return q;
}

// Hundredths as a number with no trailing zeros: 6667 "66.67", 250 "2.5", 5000 "50".
std::string Hundredths(int64_t h) {
  std::string out = h < 0 ? "-" : "";
  h = std::llabs(h);
  out += std::to_string(h / 100);
  if (const int64_t frac = h % 100; frac != 0)
    out += frac % 10 == 0 ? "." + std::to_string(frac / 10) : (frac < 10 ? ".0" : ".") + std::to_string(frac);
  return out;
}

int64_t OrOne(int64_t v) { return v == 0 ? 1 : v; }

}  // namespace

const std::vector<LogDateItem>& LogDateItems() {
  static const std::vector<LogDateItem> items{{"Show Today", "t"},     {"Last 3 Days", "3d"},
                                              {"Last 7 Days", "7d"},   {"Last 30 Days", "30d"},
                                              {"Last 3 Months", "3m"}, {"Last 5 Months", "5m"},
                                              {"Show All", ""}};
  return items;
}

bool LogKeeps(const ScoreRec& r, const std::string& key, const CivilDate& today) {
  const long d = DaysBetween(r.Day, today);
  if (key == "t") return d == 0;
  if (key == "3d") return d >= 0 && d <= 3;
  if (key == "7d") return d >= 0 && d <= 7;
  if (key == "30d") return d >= 0 && d <= 30;
  if (key == "3m" || key == "5m") return d >= 0 && MonthsBetween(r.Day, today) <= (key == "3m" ? 3 : 5);
  return true;
}

std::vector<std::pair<std::string, std::string>> GeneralRows(const TotalsRec& t) {
  const int64_t P = OrOne(t.Played), T = OrOne(t.Time);
  auto n = [](int64_t v) { return std::to_string(v); };
  return {{"Games Played : ", n(t.Played)},
          {"Games Won : ", n(t.Won)},
          {"Games Lost : ", n(t.Lost)},
          {"Total Moves : ", n(t.Moves)},
          {"Total Score : ", n(t.Score)},
          {"Total Time : ", FormatSeconds(t.Time)},
          {"Moves Per Game : ", n(t.Moves / P)},
          {"Score Per Game : ", n(t.Score / P)},
          {"Time Per Game : ", FormatSeconds(RoundedQuotient(t.Time, P))},
          {"Games Per Hour : ", n(int64_t{t.Played} * 3600 / T)},
          {"Moves Per Hour : ", n(int64_t{t.Moves} * 3600 / T)},
          {"Score Per Hour : ", n(int64_t{t.Score} * 3600 / T)},
          {"Winning Percentage : ", Hundredths(RoundedQuotient(int64_t{t.Won} * 10000, P)) + "%"}};
}

std::string GamePercent(const TotalsRec& t) {
  return Hundredths(RoundedQuotient(int64_t{t.Won} * 10000, OrOne(t.Played))) + "%";
}

std::string PlayerPercent(const TotalsRec& t) {
  return std::to_string(RoundedQuotient(int64_t{t.Won} * 100, OrOne(t.Played))) + "%";
}

const std::vector<PeriodItem>& PeriodItems() {
  static const std::vector<PeriodItem> items{
      {"Last 5 Days", "5d", "d", 5, "Day"},         {"Last 10 Days", "10d", "d", 10, "Day"},
      {"Last 30 Days", "30d", "d", 30, "Day"},      {"Last 5 Months", "5m", "m", 5, "Month"},
      {"Last 10 Months", "10m", "m", 10, "Month"}, {"Last 5 Years", "5y", "yyyy", 5, "Year"}};
  return items;
}

std::vector<PeriodRec> PeriodRows(const cScore& score, const PeriodItem& item, const CivilDate& today) {
  const std::string tag = item.tag;
  std::vector<PeriodRec> rows;
  for (int i = item.rows - 1; i >= 0; --i) {
    const CivilDate day = tag == "d" ? DaysBack(today, i) : MonthsBack(today, tag == "m" ? i : 12 * i);
    rows.push_back(score.PeriodTotals(day, tag));
  }
  return rows;
}

}  // namespace qv
