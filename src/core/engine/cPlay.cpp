#include "engine/cPlay.h"

#include <cmath>

#include "engine/MoveRules.h"
#include "engine/Numeric.h"
#include "engine/Rules.h"
#include "engine/mStudio.h"
#include "session/Program.h"
#include "settings/Settings.h"

namespace qv {

namespace {
constexpr int kGroupStep = 250;  // a carried card hangs this far below the one under it
auto PileCards(const Table& t, int cell, int p) {
  return [&t, cell, p](int q) -> const CardRec& { return t.Card(t.GetPicID(cell, p, q)); };
}
const CardRec* TopCard(const Table& t, int cell, int p) {
  return t.GetTop(cell, p) < 0 ? nullptr : &t.Card(t.GetTopPicID(cell, p));
}
}  // namespace

void cPlay::Init(const GameNo& no) {
  backPic_ = app_.cImages.CardBack(DeckIndex(app_));
  table_.Make(app_.cGames, no);
  LoadCards();
  SetupGoal();
  SetupPiles();
  FillStock();
  app_.cSound.StartGame();
  DealHome();
}

void cPlay::LoadCards() {
  auto& s = app_.surface.sprites;
  for (int i = 0; i < table_.TotalCards(); ++i) {
    if (i > 0) s.MakeElement(Sprites::PicCD, i);
    s.SetPicture(Sprites::PicCD, i, backPic_);
    s.BringToFront(Sprites::PicCD, i);
  }
  for (int i = 1; i <= app_.cGames.Piles(3); ++i) s.MakeElement(Sprites::PicRight, i);
  for (int i = 1; i <= app_.cGames.Piles(0); ++i) s.MakeElement(Sprites::PicHome, i);
  app_.cImages.EndFaces();
  app_.motion.Yield(s);
}

void cPlay::SetupGoal() {
  auto& s = app_.surface.sprites;
  for (int f = 0; f < app_.cGames.Piles(3); ++f) {
    s.SetPicture(Sprites::PicRight, f, app_.cImages.PileMarker(13));
    s.Move(Sprites::PicRight, f, app_.cGames.GetCordX(3, f, 0), app_.cGames.GetCordY(3, f, 0));
    s.SetVisible(Sprites::PicRight, f, true);
  }
}

void cPlay::SetupPiles() {
  auto& s = app_.surface.sprites;
  const int marker = app_.cGames.EmptyNum() == 13 ? 14 : app_.cGames.EmptyNum();
  for (int p = 0; p < app_.cGames.Piles(0); ++p) {
    s.SetPicture(Sprites::PicHome, p, app_.cImages.PileMarker(marker));
    s.Move(Sprites::PicHome, p, app_.cGames.GetCordX(0, p, 0), app_.cGames.GetCordY(0, p, 0));
    s.SetVisible(Sprites::PicHome, p, true);
  }
  app_.cImages.EndMarkers();
}

void cPlay::ShowStockPile() {
  auto& s = app_.surface.sprites;
  s.SetPicture(Sprites::PicStock, 0, app_.cImages.PileMarker(app_.cGames.StockNum() + 14));
  s.Move(Sprites::PicStock, 0, app_.cGames.GetCordX(1, 0, 0), app_.cGames.GetCordY(1, 0, 0));
  s.SetVisible(Sprites::PicStock, 0, true);
}

void cPlay::FillStock() {
  ShowStockPile();
  for (int i = 0; i < table_.TotalCards(); ++i) AnimateCard(i, 1, 0, i, 0, false, false);
}

void cPlay::DealHome() {
  const int P = app_.cGames.Piles(0), C = app_.cGames.Cards(0), O = app_.cGames.CardsOpen();
  for (int k = 0; k < C && table_.GetTop(1, 0) >= 0; ++k)
    AnimateCard(table_.GetTopPicID(1, 0), 0, k % P, k / P, 2, k >= C - O, true);
}

CardPlace cPlay::GetCardPlace(int PicID) const {
  const CardRec& c = table_.Card(PicID);
  return {c.Cell, c.Pile, c.Pos};
}

void cPlay::MoveCard(int mPicID, int DCell, int DPile, int DPos, int tMod, int Speed, int mCards, bool DFace) {
  const CardPlace src = GetCardPlace(mPicID);
  // The card under a moving card is turned up before the card leaves.
  if (tMod != 4 && TurnsUp(src.Cell, src.Pos, PileCards(table_, src.Cell, src.Pile))) {
    tMod = 3;
    ChangeFaceMode(table_.GetPicID(0, src.Pile, src.Pos - 1), true);
  }
  if (tMod != 4) app_.cEngine.SaveTrans(mPicID, DCell, DPile, DPos, mCards, tMod);
  AnimateCard(mPicID, DCell, DPile, DPos, Speed, DFace, true);
  for (int i = 1; i <= mCards; ++i) {
    const int s = table_.GetPicID(src.Cell, src.Pile, src.Pos + i);
    app_.surface.sprites.SetParent(s, -1);
    AnimateCard(s, DCell, DPile, DPos + i, 0, DFace, true);
  }
  if (tMod != 4 && tMod != 2) AutoMoveCheck();
  if (app_.cGamePlay.Game_Running()) app_.cGamePlay.CheckEndOfGame();
}

void cPlay::AnimateCard(int mPicID, int DCell, int DPile, int DPos, int Speed, bool DFace, bool Leave) {
  auto& s = app_.surface.sprites;
  // Worked out before the table changes, so the closed cards are counted as they lie now.
  const double X = app_.cGames.GetCordX(DCell, DPile, DPos);
  const double Y = app_.cGames.GetCordY(DCell, DPile, DPos);
  s.BringToFront(Sprites::PicCD, mPicID);
  s.SetVisible(Sprites::PicCD, mPicID, true);
  if (Speed > 0) {
    const double x0 = s.Left(Sprites::PicCD, mPicID), y0 = s.Top(Sprites::PicCD, mPicID);
    const double sx = x0 < X ? 1 : -1, sy = y0 < Y ? 1 : -1;
    for (int i = 1; i <= Speed; ++i) {
      s.Move(Sprites::PicCD, mPicID, x0 + std::abs(X - x0) * i * sx / Speed, y0 + std::abs(Y - y0) * i * sy / Speed);
      s.PaintFrame();
    }
  }
  s.Move(Sprites::PicCD, mPicID, X, Y);
  table_.UpdatePlace(mPicID, DCell, DPile, DPos, DFace, Leave);
  ChangeFaceMode(mPicID, DFace);
  app_.motion.Yield(s);
}

void cPlay::ChangeFaceMode(int mPicID, bool FMode) {
  const CardRec& c = table_.Card(mPicID);
  const Picture face = app_.cImages.CardFace(c.Suit * 13 + c.Num + 1);
  app_.surface.sprites.SetPicture(Sprites::PicCD, mPicID, FMode ? face : backPic_);
  table_.SetFace(mPicID, FMode);
}

void cPlay::ChangeDecks() {
  backPic_ = app_.cImages.CardBack(DeckIndex(app_));
  for (int i = table_.TotalCards() - 1; i >= 0; --i)
    if (!table_.Card(i).FaceMode) app_.surface.sprites.SetPicture(Sprites::PicCD, i, backPic_);
}

void cPlay::UnloadArray(int collection) {
  auto& s = app_.surface.sprites;
  const auto c = static_cast<Sprites>(collection);
  for (int i = s.Count(c) - 1; i >= 1; --i) s.RemoveElement(c, i);
  s.SetVisible(c, 0, false);
}

void cPlay::ClearAll() {
  auto& s = app_.surface.sprites;
  s.SetParent(0, -1);
  for (Sprites c : {Sprites::PicCD, Sprites::PicHome, Sprites::PicRight, Sprites::PicRes})
    UnloadArray(static_cast<int>(c));
  s.SetVisible(Sprites::PicStock, 0, false);
  s.SetVisible(Sprites::PicWaste, 0, false);
  table_.Clear();
  sel_.clear();
  s.SetWidth(Sprites::PicCD, 0, kCardWidth);
  s.SetHeight(Sprites::PicCD, 0, kCardHeight);
  // A game that goes away during a drag takes the drag with it.
  app_.drag.Dragging = false;
}

// ---- the pointer ----

void cPlay::MouseDown(int PicID, int Cell, int Pile, int Pos) {
  auto& drag = app_.drag;
  auto& s = app_.surface.sprites;
  if (Cell == 0) {
    const int Top = table_.GetTop(0, Pile);
    const int riding = PickUp(MoveRules::Of(app_.cGames), PileCards(table_, 0, Pile), Top, Pos);
    if (Pos == Top) {
      drag.Dragging = true;
    } else {
      drag.DragCount = static_cast<int16_t>(Top - Pos);
      if (riding > 0) {
        drag.Dragging = true;
        sel_.assign(drag.DragCount + 1, 0);
        for (int i = 1; i <= drag.DragCount; ++i) {
          sel_[i] = static_cast<int16_t>(table_.GetPicID(0, Pile, Pos + i));
          s.SetParent(sel_[i], PicID);
          s.Move(Sprites::PicCD, sel_[i], 0, kGroupStep * i);
        }
        s.SetHeight(Sprites::PicCD, PicID, drag.DragCount * kGroupStep + kCardHeight);
      }
    }
  } else if (Cell == 1) {
    DealRow();
  } else {
    drag.Dragging = true;
  }
  if (drag.Dragging) s.BringToFront(Sprites::PicCD, PicID);
}

void cPlay::MouseMove(int PicID, int /*Pile*/, int /*Pos*/, double x, double y) {
  auto& s = app_.surface.sprites;
  s.Move(Sprites::PicCD, PicID, s.Left(Sprites::PicCD, PicID) + x - app_.drag.DownX,
         s.Top(Sprites::PicCD, PicID) + y - app_.drag.DownY);
}

void cPlay::MouseUp(int PicID, int Cell, int Pile, int Pos) {
  auto& s = app_.surface.sprites;
  s.SetHeight(Sprites::PicCD, PicID, kCardHeight);
  s.SetWidth(Sprites::PicCD, PicID, kCardWidth);
  // A move that would not fit in the journal is not begun: the cards go back.
  if (app_.cEngine.HasRoomFor(1)) {
    for (bool overlap : {false, true}) {
      for (int p = 0; p < app_.cGames.Piles(0); ++p) {
        const int t = table_.GetTop(0, p);
        if (!CardOverPlace(PicID, 0, p, t, overlap)) continue;
        if (!MayDrop(MoveRules::Of(app_.cGames), Cell, Pile, p, TopCard(table_, 0, p), table_.Card(PicID))) continue;
        MoveCard(PicID, 0, p, t + 1, 0, 1, app_.drag.DragCount, true);
        return;
      }
    }
  }
  ReturnCards(PicID, Pile, Pos);
}

bool cPlay::CardOverPlace(int PicID, int Cell, int Pile, int Pos, bool Overlap) const {
  const auto& s = app_.surface.sprites;
  const auto x1 = RoundHalfEven(s.Left(Sprites::PicCD, PicID));
  const auto y1 = RoundHalfEven(s.Top(Sprites::PicCD, PicID));
  const int x2 = app_.cGames.GetCordX(Cell, Pile, Pos);
  const int y2 = app_.cGames.GetCordY(Cell, Pile, Pos);
  const auto r1 = x1 + kCardWidth, b1 = y1 + kCardHeight;
  const int r2 = x2 + kCardWidth, b2 = y2 + kCardHeight;
  if (!Overlap) {
    const auto cx = RoundHalfEven(kCardWidth / 2.0 + x1);
    const auto cy = RoundHalfEven(kCardHeight / 2.0 + y1);
    return x2 < cx && cx < r2 && y2 < cy && cy < b2;
  }
  return x1 < r2 && r1 > x2 && y1 < b2 && b1 > y2;
}

void cPlay::ReturnCards(int PicID, int /*Pile*/, int /*Pos*/) {
  auto& s = app_.surface.sprites;
  const auto& drag = app_.drag;
  s.Move(Sprites::PicCD, PicID, drag.StartLeft, drag.StartTop);
  for (int i = 1; i <= drag.DragCount && i < static_cast<int>(sel_.size()); ++i) {
    s.SetParent(sel_[i], -1);
    s.Move(Sprites::PicCD, sel_[i], drag.StartLeft, drag.StartTop + kGroupStep * i);
  }
}

// ---- the Stock and automatic moves ----

void cPlay::DealRow() {
  const int rowSize = RowSize(MoveRules::Of(app_.cGames), table_.GetTop(1, 0) + 1);
  if (!app_.cEngine.HasRoomFor(rowSize)) return;
  app_.cEngine.StartMulti();
  for (int p = 0; p < app_.cGames.Piles(0); ++p) {
    if (table_.GetTop(1, 0) < 0) break;
    MoveCard(table_.GetTopPicID(1, 0), 0, p, table_.GetTop(0, p) + 1, 1, 2, 0, true);
  }
  app_.cEngine.EndMulti();
}

void cPlay::AutoMoveCheck() {
  if (app_.cGamePlay.Game_Status() != 1) return;
  for (int p = 0; p < app_.cGames.Piles(0); ++p) {
    if (!app_.cGamePlay.Game_Running()) return;
    if (!table_.Exists() || !HasSetOnTop(table_, app_.cGames, p)) continue;
    if (!app_.cEngine.HasRoomFor(kSetCards)) return;
    const int f = SetFoundation(MoveRules::Of(app_.cGames), table_.Card(table_.GetTopPicID(0, p)));
    app_.cEngine.StartMulti();
    app_.cSound.AutoPlay();  // as the set starts to leave
    for (int n = 0; n < kSetCards; ++n) {
      // The last card may finish the game, and the table may be gone when that returns.
      if (!app_.cGamePlay.Game_Running()) return;
      MoveCard(table_.GetTopPicID(0, p), 3, f, table_.GetTop(3, f) + 1, 0, 1, 0, true);
    }
    app_.cEngine.EndMulti();
  }
}

void cPlay::DoubleClick(int PicID) {
  if (app_.cGamePlay.Game_Status() != 1 || !table_.Exists()) return;
  const CardRec& c = table_.Card(PicID);
  if (c.Cell == 1 || c.Cell == 3) return;
  if (c.Pos != table_.GetTop(c.Cell, c.Pile)) return;
  if (!app_.cEngine.HasRoomFor(1)) return;
  const int f = DoubleClickTarget(
      MoveRules::Of(app_.cGames), [this](int f) { return TopCard(table_, 3, f); },
      [this](int f) { return table_.GetTop(3, f); }, c);
  if (f >= 0) MoveCard(PicID, 3, f, table_.GetTop(3, f) + 1, 0, 1, 0, true);
}

}  // namespace qv
