#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "engine/GameNo.h"
#include "scores/ScoreDate.h"

namespace qv {

// One ended game, as a line of a score file or an entry of this run's list.
struct ScoreRec {
  std::string Date;  // the general date form; empty in the run's list and in an empty slot
  std::string GameName;
  qv::GameNo GameNo;
  int32_t Time = 0;
  int32_t Moves = 0;
  int32_t Score = 0;
  int16_t Won = 0;
  std::string Player;  // from the file it was read from, never written
  CivilDate Day;       // Date read once
};

struct TotalsRec {
  int32_t Played = 0, Won = 0, Lost = 0, Score = 0, Moves = 0, Time = 0;
};

struct PeriodRec : TotalsRec {
  std::string Label;
};

// `"11/17/2026 6:41:26 AM","Spider",123456,754,212,683,1` and its CR LF.
std::string ScoreLine(const ScoreRec& r);
// A line that does not hold seven fields of the right kinds (a missing one, a number past
// 32 bits, a date that does not read) gives std::nullopt.
std::optional<ScoreRec> ReadScoreLine(std::string_view line);

}  // namespace qv
