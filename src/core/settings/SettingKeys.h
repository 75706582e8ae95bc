#pragma once

#include <cstdint>

namespace qv {

// A setting: its section, its key and the value it has when nothing is stored.
struct IntSetting {
  const char* section;
  const char* key;
  int16_t fallback;
};
struct TextSetting {
  const char* section;
  const char* key;
  const char* fallback;
};

namespace setting {
inline constexpr IntSetting UnFin{"General", "UnFin", 0};
inline constexpr TextSetting LastGName{"General", "LastGName", ""};
inline constexpr IntSetting GameSave{"Options", "GameSave", 1};
inline constexpr IntSetting EnableInc{"Options", "EnableInc", 1};
inline constexpr IntSetting EnableFin{"Options", "EnableFin", 1};
inline constexpr IntSetting ShowTime{"Options", "ShowTime", 1};
inline constexpr IntSetting ShowScore{"Options", "ShowScore", 1};
inline constexpr IntSetting ShowMoves{"Options", "ShowMoves", 1};
inline constexpr IntSetting ShowCardsLeft{"Options", "ShowCardsLeft", 1};
inline constexpr IntSetting RangeIndex{"Options", "RangeIndex", 6};
inline constexpr IntSetting ShowToolbar{"Options", "ShowToolbar", 1};
inline constexpr IntSetting AutoPlay{"Options", "AutoPlay", 1};
inline constexpr IntSetting WPTimerValue{"BackGround", "WPTimerValue", 4};
inline constexpr IntSetting DeckIndex{"BackGround", "DeckIndex", 7};
inline constexpr IntSetting CardSpeed{"Animation", "CardSpeed", 5};
inline constexpr IntSetting UndoSpeed{"Animation", "UndoSpeed", 5};
inline constexpr IntSetting UndoallSpeed{"Animation", "UndoallSpeed", 2};
inline constexpr IntSetting ReplaySpeed{"Animation", "ReplaySpeed", 7};
inline constexpr TextSetting CurPlayer{"Players", "CurPlayer", ""};
}  // namespace setting

}  // namespace qv
