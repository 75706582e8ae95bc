#pragma once

#include <string>

namespace qv {

class Program;
class cEngine;

// The texts of a journal record as the Moves Manager and the Game History show it. The
// Moves Manager prints piles and positions as stored, from 0; the history counts them
// from 1: `base` is what is added.
std::string AreaName(int cell);
std::string SourceText(const cEngine& e, int id, int base);
std::string DestText(const cEngine& e, int id, int base);
std::string CardsText(const cEngine& e, int id);
// A record that is not the last of its step: a position that cannot be reached by itself.
bool InsideStep(const cEngine& e, int id);

// A row of the Moves Manager: position 0 is the start, n stands for record n.
struct QuickMoveRow {
  std::string moves, source, destination, cards;
  bool inner = false;
};
QuickMoveRow QuickMoveRowOf(const Program& app, int position);

// What the Moves Manager's labels and title say of a position.
struct PositionTexts {
  std::string text1, text2, text3, title;
};
PositionTexts PositionTextsOf(const Program& app, int id);

}  // namespace qv
