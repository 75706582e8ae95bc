#pragma once

#include <string>
#include <utility>
#include <vector>

namespace qv {

class Program;
class cCustom;

// Edit and Delete leave the game that runs alone; false, after saying so, for it. A game on
// the table that no longer runs (a finished game replayed) may be changed.
bool MayEditGame(Program& app, const std::string& name);
bool MayDeleteGame(Program& app, const std::string& name);
// Asks, then removes the game's file and has the game list and the menus rebuilt. Scores,
// saved games and favourites of the game stay. False when refused or not confirmed.
bool DeleteStudioGame(Program& app, const std::string& name);

// The lists of the editor's controls: tag and text of each item, in order. The editor
// offers 6 to 10 piles, no tableau order that needs suits, and no "Any Card" group order.
enum class GameCombo { Piles, Order, Space, MultiOrder, Suits };
std::vector<std::pair<int, std::string>> GameComboItems(GameCombo list);

// One line of a game's rules page: a fixed text and what the game's fields fill in beside
// it (or on its second line), empty for none.
struct RulesLine {
  std::string text;
  std::string value;
};
// The page in reading order, from the rule fields held.
std::vector<RulesLine> RulesPage(const cCustom& c);

}  // namespace qv
