#pragma once

#include <string>
#include <vector>

namespace qv {

// One fixed menu entry. Indices with no entry are separators; they count, since entries
// are addressed by menu and index.
struct MenuEntry {
  int index;
  const char* caption;
  const char* key;
  const char* shortcut;  // in the form QKeySequence reads, "" for none
};

struct MenuDef {
  const char* name;     // mFile, mGame, ...
  const char* caption;  // "&File", ...
  int size;             // highest index
  std::vector<MenuEntry> entries;
};

// The menu bar, in its order. Every key but Recent, which opens a sub-menu, is a command.
const std::vector<MenuDef>& MainMenus();

// One customisable toolbar button (ids 1 to 32), or Editor and Wizard, which always show.
struct ToolbarButtonDef {
  int id;               // 0 for Editor and Wizard
  const char* key;
  const char* caption;  // shown in the Customize Toolbar list
  int fallback;         // on the toolbar by default
  const char* tooltip;
};

// The toolbar from left to right; a separator is a button whose key starts with "Sep".
const std::vector<ToolbarButtonDef>& ToolbarLayout();
// The customisable buttons by id, 1 to 32.
const ToolbarButtonDef& ToolbarButton(int id);
constexpr int kToolbarButtons = 32;

}  // namespace qv
