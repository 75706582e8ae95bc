#pragma once

#include <cstdint>
#include <string>

namespace qv {

class cCustom;
class cGames;
class Table;

constexpr int kStandardGames = 7;
extern const char* const kStandardGameNames[kStandardGames];

// Fills cCustom from the table of the seven standard games; false for any other name.
bool SetStdGame(cCustom& custom, const std::string& name);
// Turns the rule parameters into the definition the table reads.
void SetupGame(const cCustom& custom, cGames& games);

std::string GetOrderName(int code);
std::string GetSpaceName(int code);
std::string GetSuitName(int code);
std::string GetBoolName(int code);

// Do the cards pB (lying) and pT (laid on it) stand in the order of orderCode?
bool CheckOrder(const Table& table, int pB, int pT, int orderCode, bool AK);

}  // namespace qv
