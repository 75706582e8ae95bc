#pragma once

#include <cstdint>
#include <string>

#include "engine/GameNo.h"

namespace qv {

class Program;
class cEngine;

// The head of a game's history report: the game, who played it, and when it was written.
struct HistoryHead {
  std::string GameName;
  qv::GameNo GameNo;
  std::string Player;
  int16_t Moves = 0;
  std::string Time;
  int16_t Score = 0;
  std::string Date;
};
// The game on the table, for the current player, dated now.
HistoryHead HistoryHeadOf(const Program& app);

// One record's line of the report, piles and positions counted from 1.
std::string HistoryLine(const cEngine& e, int id);
// The whole report: the head, then every record up to the top, undone ones too, each line
// ending in CR LF.
std::string HistoryReport(const HistoryHead& head, const cEngine& e);
// Writes the report of the game on the table; false with the reason when it failed, and
// then a file that was there stays whole.
bool ExportHistory(Program& app, const std::string& fName, std::string* error = nullptr);

}  // namespace qv
