#pragma once

#include <array>
#include <cstdint>
#include <vector>

#include "engine/GameNo.h"
#include "engine/Places.h"

namespace qv {

class cGames;

struct CardRec {
  int16_t Num = 0;       // 0 Ace ... 12 King
  int16_t Suit = 0;      // 0 to 3
  int16_t Suitpile = 0;  // block of 13 the card comes from, 0 to 7
  bool FaceMode = false;
  int16_t Cell = 0;
  int16_t Pile = 0;
  int16_t Pos = 0;
};

// What lies on the table, as plain data: every card with its place, and for every pile
// which card lies at which position. Rules and geometry read it; cPlay changes it.
class Table {
 public:
  Table() { Clear(); }
  // Makes the empty table for a deal (no card placed yet) and shares out identities.
  void Make(const cGames& games, const GameNo& no);
  void Clear();
  bool Exists() const { return !cards_.empty(); }

  // Books a card at a place: it must land at the pile's top + 1 and, when it leaves,
  // leave from the top of its pile (or the foot of a group whose cards follow).
  void UpdatePlace(int PicID, int Cell, int Pile, int Pos, bool Face, bool Leave);
  void SetFace(int PicID, bool face) { cards_[PicID].FaceMode = face; }

  // Books the opening deal with no pictures at all, as cPlay.Init does with them.
  void DealQuietly(const cGames& games, const GameNo& no);

  int16_t TotalCards() const { return static_cast<int16_t>(cards_.size()); }
  const GameNo& DealNo() const { return gameNo_; }
  const std::vector<int16_t>& Deck() const { return deck_; }
  const CardRec& Card(int PicID) const { return cards_[PicID]; }
  int Color(int PicID) const { return cards_[PicID].Suit % 2; }
  int GetTop(int Cell, int Pile) const { return tops_[Cell][Pile]; }
  int GetPicID(int Cell, int Pile, int Pos) const { return grid_[Cell][Pile][Pos]; }
  int GetTopPicID(int Cell, int Pile) const { return grid_[Cell][Pile][tops_[Cell][Pile]]; }
  int ClosedCards(int Pile) const;
  int GoalBase() const { return goalBase_; }
  // Highest Pos index the Grid row of an area holds now; -1 for an area without a row.
  int PosLimit(int Cell) const;

  bool CheckNum(int pB, int pT, int iNum, int ColorSuit, bool AK) const;

 private:
  void MakeRow(int Cell, int piles, int posTo);
  void GrowPile(int Cell, int Pos);

  std::array<std::vector<std::vector<int16_t>>, kCellCount> grid_;
  std::array<std::array<int16_t, kMaxPiles>, kCellCount> tops_{};
  std::vector<int16_t> deck_;
  std::vector<CardRec> cards_;
  GameNo gameNo_;
  int goalBase_ = 0;
};

}  // namespace qv
