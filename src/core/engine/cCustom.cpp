#include "engine/cCustom.h"

#include "engine/mStudio.h"
#include "session/Program.h"
#include "session/SavedGameFile.h"

namespace qv {

bool cCustom::Init(const std::string& gName) {
  const bool loaded = app_->cData.IsOriginal(gName) ? LoadStudioFile(gName) : SetStdGame(*this, gName);
  // Parameters of a known game replace whatever a saved game's header brought.
  if (loaded) headerName_.clear();
  return loaded;
}

void cCustom::Home(int16_t cHPiles, int32_t cHOrder, int16_t cHSpace, int16_t cHAK, int16_t cHMulti, int32_t cSuits,
                   int32_t cMOrder) {
  HPiles = cHPiles;
  HOrder = static_cast<int16_t>(cHOrder);
  HSpace = cHSpace;
  HAK = cHAK;
  HMulti = cHMulti;
  Suits = static_cast<int16_t>(cSuits);
  MOrder = static_cast<int16_t>(cMOrder);
}

void cCustom::Goal(int32_t cGOrder, int16_t cGBase, int16_t cGCards) {
  GOrder = static_cast<int16_t>(cGOrder);
  GBase = cGBase;
  GCards = cGCards;
}

void cCustom::Res(int16_t cRPiles, int16_t cRCards) {
  RPiles = cRPiles;
  RCards = cRCards;
}

std::array<cCustom::PlacedPicture, 3> cCustom::Update_Pic() const {
  const cImages& images = app_->cImages;
  return {{{images.PreviewPicture(cImages::PreviewReserve, RPiles, RCards), 0, 0},
           {images.PreviewPicture(cImages::PreviewGoal, GBase, GCards), 125, 0},
           {images.PreviewPicture(cImages::PreviewTableau, HPiles, Suits), 0, 36}}};
}

void cCustom::LoadGameFile(const GameHeader& h) {
  GameName = h.GameName;
  GOrder = h.GOrder, GBase = h.GBase, GCards = h.GCards;
  HOrder = h.HOrder, HSpace = h.HSpace, HPiles = h.HPiles, HAK = h.HAK, HMulti = h.HMulti;
  RPiles = h.RPiles, RCards = h.RCards, MOrder = h.MOrder, Suits = h.Suits;
  headerName_ = h.GameName;
}

}  // namespace qv
