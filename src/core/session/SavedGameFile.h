#pragma once

#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "engine/GameNo.h"
#include "session/TransRec.h"

namespace qv {

// The head of a saved game: what the lists show and what deals the game again.
struct GameHeader {
  std::string GameName;
  qv::GameNo GameNo;
  int32_t Time = 0;
  int16_t Moves = 0, Score = 0, Percentage = 0;
  std::string FileDate;
  int16_t GOrder = 0, GBase = 0, GCards = 0, HOrder = 0, HSpace = 0, HPiles = 0, HAK = 0, HMulti = 0;
  int16_t RPiles = 0, RCards = 0, MOrder = 0, Suits = 0;
};

struct SavedGame {
  GameHeader header;
  std::vector<TransRec> records;  // in journal order, record 1 first
};

// " 5 " and "-12 ": the number form of every number in a saved game.
std::string NumberField(long long v);
// Line 2: the number form for a number, the bare digits for a number as typed.
std::string GameNoField(const GameNo& no);
// Numbers in the number form, each starting at the next 14-character print zone.
std::string ZonedLine(std::span<const long long> fields);
// The ten fields of a record, zoned.
std::string MoveLine(const TransRec& r);
// The whole file: 18 header lines and one move line per record, every line ending in CR LF.
std::string FormatSavedGame(const GameHeader& h, const std::vector<TransRec>& records);

// Reads a saved game by fields. A file that ends inside a header or a move line, or that
// holds anything but what belongs there, gives an error text saying where; never a half game.
struct ParsedGame {
  std::optional<SavedGame> game;
  std::string error;
};
ParsedGame ParseSavedGame(std::string_view text, bool headerOnly = false);
// Reads the file and fills FileDate from the file system.
ParsedGame ReadSavedGame(const std::string& fName, bool headerOnly = false);
std::optional<GameHeader> ReadGameHeader(const std::string& fName);

// A saved game is finished when its name ends in the finished extension, in any case.
bool IsFinishedFileName(const std::string& fName, const std::string& finExt);

}  // namespace qv
