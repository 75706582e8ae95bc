#pragma once

#include <string>
#include <utility>
#include <vector>

#include "scores/ScoreRec.h"

namespace qv {

class cScore;

// The date filters of the log: "t", "3d", "7d", "30d", "3m", "5m"; any other key shows all.
// Differences count calendar days and months, so a date in the future shows only under all.
bool LogKeeps(const ScoreRec& r, const std::string& dateKey, const CivilDate& today);
struct LogDateItem {
  const char* text;
  const char* key;
};
const std::vector<LogDateItem>& LogDateItems();

// The rows of the general summary, label and value, from the totals of the whole store.
std::vector<std::pair<std::string, std::string>> GeneralRows(const TotalsRec& t);
// Won of Played to two decimals ("66.67%"), and in whole percents after rounding the
// fraction first ("67%"), as the game and the player tables show them.
std::string GamePercent(const TotalsRec& t);
std::string PlayerPercent(const TotalsRec& t);

// The periods of the date-wise statistics: the selector's items and their rows, oldest first.
struct PeriodItem {
  const char* text;
  const char* key;
  const char* tag;  // "d", "m" or "yyyy"
  int rows;
  const char* heading;
};
const std::vector<PeriodItem>& PeriodItems();
std::vector<PeriodRec> PeriodRows(const cScore& score, const PeriodItem& item, const CivilDate& today);

}  // namespace qv
