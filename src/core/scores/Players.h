#pragma once

#include <string>

namespace qv {

class cRegistry;

// Players live in the settings, slots "1" to "20" without gaps, and the current one by name.
constexpr int kMaxPlayers = 20;
int PlayerCount(const cRegistry& reg);
std::string GetPlayer(const cRegistry& reg, int slot);
void SetPlayer(cRegistry& reg, int slot, const std::string& name, bool MakeCurrent);
std::string GetCurPlayer(const cRegistry& reg);
void SetCurPlayer(cRegistry& reg, const std::string& name);

}  // namespace qv
