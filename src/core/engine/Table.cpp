#include "engine/Table.h"

#include "engine/DealGenerator.h"
#include "engine/MoveRules.h"
#include "engine/Numeric.h"
#include "engine/cGames.h"

namespace qv {

void Table::MakeRow(int Cell, int piles, int posTo) {
  grid_[Cell].assign(piles + 1, std::vector<int16_t>(posTo + 1, -1));
}

void Table::Make(const cGames& g, const GameNo& no) {
  gameNo_ = no;
  const int total = g.TotalCards();
  for (auto& row : grid_) row.clear();
  const int homePiles = g.Piles(0);
  MakeRow(0, homePiles, homePiles > 0 ? static_cast<int>(RoundHalfEven(static_cast<double>(total) / homePiles + 13)) : 13);
  MakeRow(1, g.Piles(1), total);
  if (g.Piles(2) > 0) MakeRow(2, g.Piles(2), total);
  MakeRow(3, g.Piles(3), total == 104 && g.Piles(3) == 4 ? 26 : 13);
  if (g.Piles(4) > 0) MakeRow(4, g.Piles(4), 13);
  for (auto& cellTops : tops_) cellTops.fill(-1);

  deck_ = ShuffleDeck(total, no.Value());
  cards_.assign(total, CardRec{});
  for (int i = 0; i < total; ++i) {
    const int c = deck_[i];
    CardRec& card = cards_[i];
    card.Num = static_cast<int16_t>(c % 13);
    card.Suitpile = static_cast<int16_t>(c / 13);
    switch (g.SuitType()) {
      case 0: card.Suit = 0; break;
      case 1: card.Suit = static_cast<int16_t>((c % 52) / 26); break;
      default: card.Suit = static_cast<int16_t>((c % 52) / 13); break;
    }
  }
  goalBase_ = 0;
}

void Table::Clear() {
  for (auto& row : grid_) row.clear();
  for (auto& cellTops : tops_) cellTops.fill(-1);
  deck_.clear();
  cards_.clear();
  goalBase_ = 0;
}

void Table::DealQuietly(const cGames& g, const GameNo& no) {
  Make(g, no);
  for (int i = 0; i < TotalCards(); ++i) UpdatePlace(i, 1, 0, i, false, false);
  const int P = g.Piles(0), C = g.Cards(0), O = g.CardsOpen();
  for (int k = 0; k < C && GetTop(1, 0) >= 0; ++k) UpdatePlace(GetTopPicID(1, 0), 0, k % P, k / P, k >= C - O, true);
}

int Table::PosLimit(int Cell) const {
  const auto& row = grid_[Cell];
  return row.empty() ? -1 : static_cast<int>(row[0].size()) - 1;
}

void Table::GrowPile(int Cell, int Pos) {
  // The row grows one position at a time, keeping its contents: no pile depth is refused.
  while (Pos > PosLimit(Cell))
    for (auto& pile : grid_[Cell]) pile.push_back(-1);
}

void Table::UpdatePlace(int PicID, int Cell, int Pile, int Pos, bool Face, bool Leave) {
  CardRec& card = cards_[PicID];
  if (Leave) {
    grid_[card.Cell][card.Pile][card.Pos] = -1;
    --tops_[card.Cell][card.Pile];
  }
  GrowPile(Cell, Pos);
  grid_[Cell][Pile][Pos] = static_cast<int16_t>(PicID);
  ++tops_[Cell][Pile];
  card.Cell = static_cast<int16_t>(Cell);
  card.Pile = static_cast<int16_t>(Pile);
  card.Pos = static_cast<int16_t>(Pos);
  card.FaceMode = Face;
}

int Table::ClosedCards(int Pile) const {
  int closed = 0;
  for (int q = 0; q <= tops_[0][Pile]; ++q)
    if (!cards_[grid_[0][Pile][q]].FaceMode) ++closed;
  return closed;
}

bool Table::CheckNum(int pB, int pT, int iNum, int ColorSuit, bool AK) const {
  return CardsRelate(cards_[pB], cards_[pT], iNum, ColorSuit, AK);
}

}  // namespace qv
