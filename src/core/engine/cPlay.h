#pragma once

#include <cstdint>
#include <vector>

#include "engine/GameNo.h"
#include "engine/Places.h"
#include "engine/Table.h"
#include "surface/Picture.h"

namespace qv {

class Program;

// The cards on the table and every change of them: the deal, the pointer's moves, the
// Stock, completed sets and the sprites that show it all. Each change goes through MoveCard.
class cPlay {
 public:
  explicit cPlay(Program& app) : app_(app) {}

  void Init(const GameNo& no);
  void MouseDown(int PicID, int Cell, int Pile, int Pos);
  void MouseMove(int PicID, int Pile, int Pos, double x, double y);
  void MouseUp(int PicID, int Cell, int Pile, int Pos);
  void DoubleClick(int PicID);
  bool CheckNum(int pB, int pT, int iNum, int ColorSuit, bool AK) const {
    return table_.CheckNum(pB, pT, iNum, ColorSuit, AK);
  }
  void AutoMoveCheck();

  int Cell(int PicID) const { return table_.Card(PicID).Cell; }
  int Pile(int PicID) const { return table_.Card(PicID).Pile; }
  int Pos(int PicID) const { return table_.Card(PicID).Pos; }
  bool FaceMode(int PicID) const { return table_.Card(PicID).FaceMode; }
  int Num(int PicID) const { return table_.Card(PicID).Num; }
  int Suit(int PicID) const { return table_.Card(PicID).Suit; }
  int Suitpile(int PicID) const { return table_.Card(PicID).Suitpile; }
  int Color(int PicID) const { return table_.Color(PicID); }
  int GetTop(int Cell, int Pile) const { return table_.GetTop(Cell, Pile); }
  int GetPicID(int Cell, int Pile, int Pos) const { return table_.GetPicID(Cell, Pile, Pos); }
  int GetTopPicID(int Cell, int Pile) const { return table_.GetTopPicID(Cell, Pile); }
  int ClosedCards(int Pile) const { return table_.ClosedCards(Pile); }
  int TotalCards() const { return table_.TotalCards(); }

  void ChangeFaceMode(int mPicID, bool FMode);
  void ChangeDecks();
  void ClearAll();
  void MoveCard(int mPicID, int DCell, int DPile, int DPos, int tMod, int Speed, int mCards, bool DFace);

  const Table& table() const { return table_; }
  const std::vector<int16_t>& Sel() const { return sel_; }

 private:
  CardPlace GetCardPlace(int PicID) const;
  void AnimateCard(int mPicID, int DCell, int DPile, int DPos, int Speed, bool DFace, bool Leave);
  void LoadCards();
  void SetupGoal();
  void SetupPiles();
  void ShowStockPile();
  void FillStock();
  void DealHome();
  void DealRow();
  bool CardOverPlace(int PicID, int Cell, int Pile, int Pos, bool Overlap) const;
  void ReturnCards(int PicID, int Pile, int Pos);
  void UnloadArray(int collection);

  Program& app_;
  Table table_;
  Picture backPic_;
  std::vector<int16_t> sel_;  // element 0 unused; the cards riding on a dragged card
};

}  // namespace qv
