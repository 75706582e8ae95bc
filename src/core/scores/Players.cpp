#include "scores/Players.h"

#include "settings/cRegistry.h"

namespace qv {

namespace {
constexpr const char* kSection = "Players";
}

int PlayerCount(const cRegistry& reg) {
  int count = 0;
  for (int slot = 1; slot <= kMaxPlayers; ++slot)
    if (!GetPlayer(reg, slot).empty()) ++count;
  return count;
}

std::string GetPlayer(const cRegistry& reg, int slot) { return reg.RegGetStr(kSection, std::to_string(slot), ""); }

void SetPlayer(cRegistry& reg, int slot, const std::string& name, bool MakeCurrent) {
  reg.RegSaveStr(kSection, std::to_string(slot), name);
  if (MakeCurrent) SetCurPlayer(reg, name);
}

std::string GetCurPlayer(const cRegistry& reg) { return reg.Get(setting::CurPlayer); }
void SetCurPlayer(cRegistry& reg, const std::string& name) { reg.Set(setting::CurPlayer, name); }

}  // namespace qv
