#include "session/cEngine.h"

#include "session/Program.h"
#include "session/SavedGameFile.h"

namespace qv {

namespace {
constexpr int kBlock = 100;
}

cEngine::cEngine(Program& app) : app_(app) { ClearTRANS(); }

void cEngine::ClearTRANS() {
  ++revision_;
  TransID = 0;
  TransTop = 0;
  TransMax = kBlock;
  TRANS.assign(kBlock + 1, TransRec{});
  MultiOn = 0;
}

void cEngine::Grow() {
  TransMax += kBlock;
  TRANS.resize(TransMax + 1);
}

void cEngine::SaveTrans(int PicID, int DCell, int DPile, int DPos, int mCards, int tMod) {
  if (TransID >= kMaxRecords) return;  // callers check HasRoomFor before a step begins
  ++revision_;
  ++TransID;
  TransTop = TransID;
  if (TransID > TransMax) Grow();
  TransRec& r = TRANS[TransID];
  r.PicID = static_cast<int16_t>(PicID);
  r.SCell = static_cast<int16_t>(app_.cPlay.Cell(PicID));
  r.SPile = static_cast<int16_t>(app_.cPlay.Pile(PicID));
  r.SPos = static_cast<int16_t>(app_.cPlay.Pos(PicID));
  r.DCell = static_cast<int16_t>(DCell);
  r.DPile = static_cast<int16_t>(DPile);
  r.DPos = static_cast<int16_t>(DPos);
  r.mCards = static_cast<int16_t>(mCards);
  r.tMod = tMod;
  r.Multi = MultiOn;
}

void cEngine::EndMulti() {
  TRANS[TransID].Multi = 0;
  MultiOn = 0;
}

bool cEngine::Undo(int& Speed) {
  while (TransID >= 1) {
    const TransRec r = TRANS[TransID];
    if (r.Multi == 1 && glideSteps_) Speed = 2;
    if (Speed > 3) app_.cSound.Undo();
    if (r.tMod == 3) app_.cPlay.ChangeFaceMode(app_.cPlay.GetPicID(r.SCell, r.SPile, r.SPos - 1), false);
    ++revision_;
    app_.cPlay.MoveCard(r.PicID, r.SCell, r.SPile, r.SPos, 4, Speed, r.mCards, true);
    if (r.tMod == 1) app_.cPlay.ChangeFaceMode(r.PicID, false);
    if (r.tMod == 2) app_.cPlay.ChangeFaceMode(r.PicID, true);
    --TransID;
    if (TRANS[TransID].Multi != 1) return true;
  }
  return false;
}

bool cEngine::Redo(int& Speed) {
  while (TransID != TransTop) {
    if (TRANS[TransID].Multi == 1 && glideSteps_) Speed = 2;
    ++TransID;
    ++revision_;
    if (Speed > 3) app_.cSound.Redo();
    const TransRec r = TRANS[TransID];
    app_.cPlay.MoveCard(r.PicID, r.DCell, r.DPile, r.DPos, 4, Speed, r.mCards, true);
    if (r.tMod == 3) app_.cPlay.ChangeFaceMode(app_.cPlay.GetPicID(r.SCell, r.SPile, r.SPos - 1), true);
    if (r.tMod == 1) app_.cPlay.ChangeFaceMode(r.PicID, true);
    if (r.tMod == 2) app_.cPlay.ChangeFaceMode(r.PicID, false);
    if (r.Multi != 1) return true;
  }
  return false;
}

void cEngine::UndoAll(int& Speed) {
  while (TransID >= 1) Undo(Speed);
}

void cEngine::RedoAll(int& Speed) {
  while (TransID != TransTop) Redo(Speed);
}

void cEngine::MoveTo(int Pos, bool glide) {
  if (Pos < 0 || Pos > TransTop || Pos == TransID) return;
  glideSteps_ = glide;
  // By whole steps: a place inside a step leaves the cursor at the step's far end.
  if (Pos > TransID) {
    while (TransID < Pos) {
      int speed = 0;
      Redo(speed);
    }
  } else {
    while (TransID > Pos) {
      int speed = 0;
      Undo(speed);
    }
  }
  glideSteps_ = true;
}

int cEngine::TotalGoalCards() const {
  int total = 0;
  for (int pile = 0; pile < 8; ++pile) total += app_.cPlay.GetTop(3, pile) + 1;
  return total;
}

bool cEngine::SavetoFile(const std::string& fName, std::string* error) {
  auto& gp = app_.cGamePlay;
  // The rule fields written are those of the game on the table, whatever was browsed since.
  const cCustom& c = gp.DealtRules() ? *gp.DealtRules() : app_.cCustom;
  GameHeader h;
  h.GameName = gp.GameName();
  h.GameNo = gp.GameNo();
  h.Time = gp.Time();
  h.Moves = gp.Moves();
  h.Score = gp.Score();
  h.Percentage = gp.Percentage();
  h.GOrder = c.GOrder, h.GBase = c.GBase, h.GCards = c.GCards, h.HOrder = c.HOrder, h.HSpace = c.HSpace;
  h.HPiles = c.HPiles, h.HAK = c.HAK, h.HMulti = c.HMulti, h.RPiles = c.RPiles, h.RCards = c.RCards;
  h.MOrder = c.MOrder, h.Suits = c.Suits;
  const std::vector<TransRec> played(TRANS.begin() + 1, TRANS.begin() + 1 + TransID);
  return app_.cFileSys.WriteText(fName, FormatSavedGame(h, played), error);
}

bool cEngine::LoadFile(const std::string& fName, std::string* error) {
  ParsedGame parsed = ReadSavedGame(fName);
  if (!parsed.game) {
    if (error) *error = parsed.error;
    return false;
  }
  LoadRecords(parsed.game->records);
  return true;
}

void cEngine::LoadRecords(const std::vector<TransRec>& records) {
  ClearTRANS();
  for (const TransRec& r : records) {
    ++TransID;
    if (TransID > TransMax) Grow();
    TRANS[TransID] = r;
  }
  TransTop = TransID;
  TransID = 0;
}

}  // namespace qv
