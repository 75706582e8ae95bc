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

// The one table of the program's settings. Texts whose default is a folder or file of the
// user's (SaveInitDir, SchemeFile, ...) have their default given by their accessor.
namespace setting {
inline constexpr IntSetting UnFin{"General", "UnFin", 0};
// 1 from the start-up until the orderly stop: still 1 at a start means the last run crashed.
inline constexpr IntSetting SessionRunning{"General", "SessionRunning", 0};
inline constexpr TextSetting SaveInitDir{"General", "SaveInitDir", ""};
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

inline constexpr IntSetting BackIndex{"BackGround", "BackIndex", 1};
inline constexpr IntSetting TextureIndex{"BackGround", "TextureIndex", 1};
inline constexpr IntSetting ColorIndex{"BackGround", "ColorIndex", 7};
inline constexpr IntSetting ImageIndex{"BackGround", "ImageIndex", 1};
inline constexpr TextSetting SchemeFile{"BackGround", "SchemeFile", ""};
inline constexpr TextSetting CustImageFile{"BackGround", "CustImageFile", ""};
inline constexpr TextSetting ImageFolderFile{"BackGround", "ImageFolderFile", ""};
inline constexpr IntSetting FadeIndex{"BackGround", "FadeIndex", 1};
inline constexpr IntSetting EnableTile{"BackGround", "EnableTile", 1};
inline constexpr TextSetting CustImageInitDir{"BackGround", "CustImageInitDir", ""};
inline constexpr IntSetting WPTimerValue{"BackGround", "WPTimerValue", 4};
inline constexpr IntSetting DeckIndex{"BackGround", "DeckIndex", 7};

inline constexpr IntSetting CardSpeed{"Animation", "CardSpeed", 5};
inline constexpr IntSetting UndoSpeed{"Animation", "UndoSpeed", 5};
inline constexpr IntSetting UndoallSpeed{"Animation", "UndoallSpeed", 2};
inline constexpr IntSetting ReplaySpeed{"Animation", "ReplaySpeed", 7};

inline constexpr TextSetting CurPlayer{"Players", "CurPlayer", ""};
inline constexpr IntSetting AddtoFav{"Finish", "AddtoFav", 0};
inline constexpr IntSetting SaveFile{"Finish", "SaveFile", 0};
inline constexpr IntSetting AutoSaveTab{"Tools", "AutoSaveTab", 0};
inline constexpr TextSetting MainKey{"Select", "MainKey", "All"};
inline constexpr IntSetting SolverIndicator{"Solver", "Indicator", 1};
inline constexpr IntSetting SolverSeconds{"Solver", "Seconds", 10};
inline constexpr IntSetting SolverMB{"Solver", "MB", 512};
}  // namespace setting

// Sections whose keys are names: players "1" to "20", a main group's sub-item, a hot game,
// a toolbar button, a sound event, and the recent lists "1" to "10".
namespace section {
inline constexpr const char* Players = "Players";
inline constexpr const char* Select = "Select";
inline constexpr const char* HotGames = "HotGames";
inline constexpr const char* Toolbar = "Toolbar";
inline constexpr const char* Sounds = "Sounds";
inline constexpr const char* MRU0 = "MRU0";
inline constexpr const char* MRU1 = "MRU1";
inline constexpr const char* MRU2 = "MRU2";
inline constexpr const char* LIST0 = "LIST0";
}  // namespace section

}  // namespace qv
