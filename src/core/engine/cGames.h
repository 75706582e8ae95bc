#pragma once

#include <array>
#include <cstdint>
#include <string>

namespace qv {

class Program;

// One row of the table's areas, by Cell.
struct AreaRec {
  int16_t Piles = 0;
  int16_t Cards = 0;
  int32_t Order = 0;
  int16_t AK = 0;
  int16_t StartX = 0;
  int16_t StartY = 0;
  int16_t PileWidth = 0;
  int16_t PosWidth = 0;
  int16_t Div = 0;
  int16_t DivWidth = 0;
  int32_t PileOrder = 0;
};

// The definition of the game on the table: what the table reads. Only SetupGame
// writes it, before every deal, and it does not change during a game.
class cGames {
 public:
  cGames() = default;
  explicit cGames(Program& app) : app_(&app) {}

  // Geometry of a place, in twips (the table's frame).
  int GetCordX(int Cell, int Pile, int Pos) const;
  int GetCordY(int Cell, int Pile, int Pos) const;

  void Home(int16_t Piles, int32_t Order, int16_t Cards, int16_t AK, int16_t cEmptyNum, int16_t cMultiMove,
            int16_t StartX, int16_t StartY, int16_t PileWidth, int16_t PosWidth, int16_t Div, int16_t DivWidth,
            int32_t PileOrder, int32_t cHomeType, int32_t cMultiOrder, int32_t cSuitType, int16_t cCardsOpen);
  void Stock(int16_t Piles, int32_t cStockMove, int16_t StartX, int16_t StartY, int16_t PosWidth,
             int16_t cStockNum, int32_t cStockType);
  void Waste(int16_t Piles, int16_t StartX, int16_t StartY, int16_t PileWidth, int16_t Cards, int16_t PosWidth);
  void Goal(int16_t Piles, int32_t Order, int16_t Cards, int32_t cGoalType, int16_t AK, int16_t StartX,
            int16_t StartY, int16_t PileWidth, int16_t PosWidth, int16_t Div, int16_t DivWidth, int32_t PileOrder);
  void Res(int16_t Piles, int16_t Cards, int16_t StartX, int16_t StartY, int16_t PileWidth, int16_t PosWidth,
           int16_t Div, int16_t DivWidth, int32_t PileOrder, int16_t cResNum);
  void Ext(int16_t cBaseX, int16_t cBaseY, int16_t Cards, int16_t cRedeals, const std::string& cTag,
           int16_t cDisAutoPlay, int16_t cGoalDiv);

  int16_t Piles(int Cell) const { return areas_[Cell].Piles; }
  int32_t Order(int Cell, int /*Pile*/) const { return areas_[Cell].Order; }
  // A stored 0 hands the decision to the tableau's order.
  int32_t MultiOrder() const { return multiOrder_ != 0 ? multiOrder_ : areas_[0].Order; }
  int16_t Cards(int Cell) const { return areas_[Cell].Cards; }
  int16_t AK(int Cell) const { return areas_[Cell].AK; }
  int32_t GoalType() const { return goalType_; }
  bool MultiMove() const { return multiMove_ != 0; }
  int32_t StockType() const { return stockType_; }
  int32_t StockMove() const { return stockMove_; }
  const std::string& Tag() const { return tag_; }
  int32_t HomeType() const { return homeType_; }
  int32_t HomePileOrder() const { return areas_[0].PileOrder; }
  int32_t SuitType() const { return suitType_; }
  int16_t TotalCards() const { return totalCards_; }
  int16_t BaseX() const { return baseX_; }
  int16_t BaseY() const { return baseY_; }
  int16_t DisAutoPlay() const { return disAutoPlay_; }
  int16_t EmptyNum() const { return emptyNum_; }
  int16_t CardsOpen() const { return cardsOpen_; }
  int16_t StockNum() const { return stockNum_; }
  int16_t GoalDiv() const { return goalDiv_; }
  int16_t ResNum() const { return resNum_; }
  int16_t Redeals() const { return redeals_; }
  const AreaRec& Area(int Cell) const { return areas_[Cell]; }

 private:
  struct Cord {
    int x, y;
  };
  Cord GetCord(int Cell, int Pile, int Pos) const;

  Program* app_ = nullptr;
  int32_t goalType_ = 0;
  int16_t emptyNum_ = 0;
  int16_t resNum_ = 0;
  int16_t multiMove_ = 0;
  int16_t redeals_ = 0;
  int32_t stockType_ = 0;
  int32_t stockMove_ = 0;
  int32_t homeType_ = 0;
  int32_t multiOrder_ = 0;
  int32_t suitType_ = 0;
  std::array<AreaRec, 5> areas_{};
  std::string tag_;
  int16_t cardsOpen_ = 0;
  int16_t totalCards_ = 0;
  int16_t baseX_ = 0;
  int16_t baseY_ = 0;
  int16_t disAutoPlay_ = 0;
  int16_t stockNum_ = 0;
  int16_t goalDiv_ = 0;
};

}  // namespace qv
