#include "engine/cGames.h"

#include <cmath>

#include "engine/Numeric.h"
#include "session/Program.h"

namespace qv {

void cGames::Home(int16_t Piles, int32_t Order, int16_t Cards, int16_t AK, int16_t cEmptyNum, int16_t cMultiMove,
                  int16_t StartX, int16_t StartY, int16_t PileWidth, int16_t PosWidth, int16_t Div, int16_t DivWidth,
                  int32_t PileOrder, int32_t cHomeType, int32_t cMultiOrder, int32_t cSuitType, int16_t cCardsOpen) {
  auto& a = areas_[0];
  a.Piles = Piles, a.Order = Order, a.Cards = Cards, a.AK = AK;
  a.StartX = StartX, a.StartY = StartY, a.PileWidth = PileWidth, a.PosWidth = PosWidth;
  a.Div = Div, a.DivWidth = DivWidth, a.PileOrder = PileOrder;
  emptyNum_ = cEmptyNum, multiMove_ = cMultiMove, homeType_ = cHomeType;
  multiOrder_ = cMultiOrder, suitType_ = cSuitType, cardsOpen_ = cCardsOpen;
}

void cGames::Stock(int16_t Piles, int32_t cStockMove, int16_t StartX, int16_t StartY, int16_t PosWidth,
                   int16_t cStockNum, int32_t cStockType) {
  auto& a = areas_[1];
  a.Piles = Piles, a.StartX = StartX, a.StartY = StartY, a.PosWidth = PosWidth;
  stockMove_ = cStockMove, stockNum_ = cStockNum, stockType_ = cStockType;
}

void cGames::Waste(int16_t Piles, int16_t StartX, int16_t StartY, int16_t PileWidth, int16_t Cards,
                   int16_t PosWidth) {
  auto& a = areas_[2];
  a.Piles = Piles, a.StartX = StartX, a.StartY = StartY, a.PileWidth = PileWidth, a.Cards = Cards;
  a.PosWidth = PosWidth;
}

void cGames::Goal(int16_t Piles, int32_t Order, int16_t Cards, int32_t cGoalType, int16_t AK, int16_t StartX,
                  int16_t StartY, int16_t PileWidth, int16_t PosWidth, int16_t Div, int16_t DivWidth,
                  int32_t PileOrder) {
  auto& a = areas_[3];
  a.Piles = Piles, a.Order = Order, a.Cards = Cards, a.AK = AK, a.StartX = StartX, a.StartY = StartY;
  a.PileWidth = PileWidth, a.PosWidth = PosWidth, a.Div = Div, a.DivWidth = DivWidth, a.PileOrder = PileOrder;
  goalType_ = cGoalType;
}

void cGames::Res(int16_t Piles, int16_t Cards, int16_t StartX, int16_t StartY, int16_t PileWidth, int16_t PosWidth,
                 int16_t Div, int16_t DivWidth, int32_t PileOrder, int16_t cResNum) {
  auto& a = areas_[4];
  a.Piles = Piles, a.Cards = Cards, a.StartX = StartX, a.StartY = StartY, a.PileWidth = PileWidth;
  a.PosWidth = PosWidth, a.Div = Div, a.DivWidth = DivWidth, a.PileOrder = PileOrder;
  resNum_ = cResNum;
}

void cGames::Ext(int16_t cBaseX, int16_t cBaseY, int16_t Cards, int16_t cRedeals, const std::string& cTag,
                 int16_t cDisAutoPlay, int16_t cGoalDiv) {
  baseX_ = cBaseX, baseY_ = cBaseY, totalCards_ = Cards, redeals_ = cRedeals, tag_ = cTag;
  disAutoPlay_ = cDisAutoPlay, goalDiv_ = cGoalDiv;
}

cGames::Cord cGames::GetCord(int Cell, int Pile, int Pos) const {
  const AreaRec& A = areas_[Cell];
  if (Cell == 1 || Cell == 2) {
    // The Stock creeps up and to the left as it grows: a stacked look.
    const int k = static_cast<int>(RoundHalfEven(std::sqrt(static_cast<double>(Pos)))) / 2;
    return {A.StartX - k * A.PosWidth, A.StartY - k * A.PosWidth};
  }
  const int x = (Pile % A.Div) * A.PileWidth + A.StartX;
  const int c = Cell == 0 ? app_->cPlay.ClosedCards(Pile) : 0;
  int y = A.StartY + (Pile / A.Div) * A.DivWidth;
  y += c > 0 ? c * 60 + (Pos - c) * A.PosWidth : Pos * A.PosWidth;
  if (Cell == 3 && Pos >= 1 && app_->cGamePlay.GameName() == "Petal") y += 250;
  return {x, y};
}

int cGames::GetCordX(int Cell, int Pile, int Pos) const {
  const double centred = (app_->ScreenWidth - baseX_) / 2.0 + GetCord(Cell, Pile, Pos).x;
  return static_cast<int>(RoundHalfEven(centred));
}

int cGames::GetCordY(int Cell, int Pile, int Pos) const { return GetCord(Cell, Pile, Pos).y + baseY_ + 360; }

}  // namespace qv
