#include "session/CommandTable.h"

#include <algorithm>

namespace qv {

const std::vector<MenuDef>& MainMenus() {
  static const std::vector<MenuDef> menus{
      {"mFile", "&File", 16,
       {{1, "&New Game", "New", "F2"},
        {2, "&Select Game", "Select", "F3"},
        {3, "&Restart Game", "Restart", ""},
        {5, "Select a Number", "SelNum", ""},
        {7, "Open Game", "Open", "Ctrl+O"},
        {8, "Save Game", "Save", "Ctrl+S"},
        {10, "&Close Game", "Close", ""},
        {12, "Recently Saved", "Recent", ""},
        {13, "Recently Opened", "Recent", ""},
        {14, "Recently Played", "Recent", ""},
        {16, "E&xit", "Exit", ""}}},
      {"mGame", "&Game", 15,
       {{1, "&Undo", "Undo", "Ctrl+Z"},
        {2, "&Redo", "Redo", "Ctrl+X"},
        {4, "Autoplay", "AutoPlay", "F7"},
        {6, "U&ndo All", "UndoAll", "Ctrl+C"},
        {7, "R&edo All", "RedoAll", "Ctrl+V"},
        {9, "Pause Game", "Pause", "F8"},
        {11, "View Toolbar", "ViewTool", ""},
        {13, "&Hint", "Hint", "H"},
        {14, "&Back to Last Winnable Position", "BackToWinnable", "Ctrl+B"},
        {15, "New &Winnable Game", "NewWinnable", "F5"}}},
      {"mReplay", "&Replay", 8,
       {{1, "&Forward", "Forward", "Shift+F1"},
        {2, "&Back", "Back", "Shift+F2"},
        {4, "Replay &All", "ReplayAll", ""},
        {6, "Sto&p", "Stop", ""},
        {8, "Moves Manager", "MovesMan", "Ctrl+M"}}},
      {"mFav", "Favorites", 3, {{1, "&Add to Favorites", "AddFav", "Ctrl+A"}, {2, "&Organize Favorites", "OrgFav", "Ctrl+F"}}},
      {"mPend", "Pending List", 3,
       {{1, "Move to Pending List", "AddPend", "Ctrl+P"}, {2, "Organize Pending List", "OrgPend", "Ctrl+Y"}}},
      {"mStat", "Statistics", 6,
       {{1, "&High Scores", "HighScore", "F9"},
        {2, "&Log Statistics", "LogStat", ""},
        {4, "&Game Statistics", "GameStat", "F4"},
        {6, "&Session Statistics", "SessionStat", ""}}},
      {"mCust", "Customize", 8,
       {{1, "Toolbar", "Toolbar", ""},
        {3, "Sounds", "Sounds", ""},
        {4, "Animation", "Animation", ""},
        {6, "Background", "Background", "Ctrl+D"},
        {8, "Card Deck", "Deck", ""}}},
      {"mTools", "&Tools", 11,
       {{1, "&Players", "Players", "Ctrl+L"},
        {2, "AutoSave", "AutoSave", ""},
        {4, "Hot Games ", "Hot", ""},
        {5, "&Game History", "History", "Ctrl+H"},
        {7, "Options", "Options", ""},
        {9, "Game Editor", "Editor", ""},
        {11, "New Game Wizard", "Wizard", ""}}},
      {"mHelp", "&Help", 8, {{1, "Rules", "Rules", "F1"}, {2, "Contents", "Contents", ""}, {8, "About...", "About", ""}}},
  };
  return menus;
}

const std::vector<ToolbarButtonDef>& ToolbarLayout() {
  static const std::vector<ToolbarButtonDef> layout{
      {1, "New", "New Game", 1, "New Game"},
      {2, "Select", "Select Game", 1, "Select Game"},
      {3, "Restart", "Restart Game", 1, "Restart Game"},
      {0, "Sep1", "", 0, ""},
      {4, "Open", "Open Game", 1, "Open a Saved Game"},
      {5, "Save", "Save Game", 1, "Save Game"},
      {0, "Sep2", "", 0, ""},
      {6, "UndoAll", "Undo All", 0, "Undo All"},
      {7, "Undo", "Undo", 1, "Undo"},
      {8, "Redo", "Redo", 1, "Redo"},
      {9, "RedoAll", "Redo All", 0, "Redo All"},
      {0, "Sep3", "", 0, ""},
      {10, "AutoPlay", "AutoPlay", 1, "AutoPlay"},
      {0, "Sep4", "", 0, ""},
      {11, "Pause", "PauseGame", 1, "Pause Game"},
      {0, "Sep5", "", 0, ""},
      {12, "Back", "Replay Back", 1, "Replay Back"},
      {13, "Stop", "Replay Stop", 1, "Replay Stop"},
      {14, "Forward", "Replay Forward", 1, "Replay Forward"},
      {0, "Sep6", "", 0, ""},
      {15, "MovesMan", "Moves Manager", 1, "Moves Manager"},
      {0, "Sep7", "", 0, ""},
      {16, "AddFav", "Add to Favorites", 1, "Add to Favorites"},
      {17, "OrgFav", "Organize Favorites", 0, "Organize Favorites"},
      {0, "Sep8", "", 0, ""},
      {18, "AddPend", "Move to Pending List", 1, "Move to Pending List"},
      {19, "OrgPend", "Organize Pending List", 0, "Organize Pending List"},
      {0, "Sep9", "", 0, ""},
      {20, "HighScore", "High Score", 0, "High Score"},
      {21, "GameStat", "Game Statistics", 1, "Game Statistics"},
      {0, "Sep10", "", 0, ""},
      {22, "Sounds", "Customize Sounds", 0, "Customize Sounds"},
      {23, "Background", "Customize Backgrounds", 1, "Customize Background"},
      {0, "Sep11", "", 0, ""},
      {24, "Players", "Players", 0, "Players"},
      {25, "AutoSave", "AutoSave", 0, "AutoSave"},
      {26, "Hot", "Hot Games", 0, "Hot Games"},
      {27, "History", "Game History", 0, "Game History"},
      {28, "Options", "Options", 1, "Options"},
      {0, "Editor", "", 1, "Game Editor"},
      {0, "Wizard", "", 1, "Add New Game Wizard"},
      {0, "Sep12", "", 0, ""},
      {29, "Rules", "Rules", 1, "Rules"},
      {30, "Contents", "Help Contents", 0, "Help Contents"},
      {0, "Sep13", "", 0, ""},
      {31, "Hint", "Hint", 1, "Hint"},
      {32, "NewWinnable", "New Winnable Game", 0, "New Winnable Game"},
  };
  return layout;
}

const ToolbarButtonDef& ToolbarButton(int id) {
  const auto& layout = ToolbarLayout();
  return *std::find_if(layout.begin(), layout.end(), [id](const ToolbarButtonDef& b) { return b.id == id; });
}

}  // namespace qv
