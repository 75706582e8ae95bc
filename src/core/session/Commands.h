#pragma once

#include <string>

namespace qv {

class Program;
class cRegistry;
struct ToolbarButtonDef;

// The one place where a command key becomes an action. Every key stops a replay first.
// Keys whose windows the desktop opens go to the window; a key with no action does nothing.
void ExecCommand(Program& app, const std::string& key);

// Whether the menu entry and button of a key are enabled in the game's present state;
// keys the enabling rules do not name are always enabled.
bool CommandEnabled(const Program& app, const std::string& key);
bool IsReplaying(const Program& app);
// Check marks and the pressed AutoPlay button.
bool AutoPlayChecked(const Program& app);
bool AutoPlayPressed(const Program& app);
bool ToolbarChecked(const Program& app);

void StopReplay(Program& app);
// One step of the replay timers; the replay stops at the end of the journal.
void ReplayTick(Program& app, bool forward);
void TogglePause(Program& app);
void ToggleAutoPlay(Program& app);
void ToggleToolbar(Program& app);
// F1: the rules of the game that runs, beside the table; with none running, the help.
void ShowGameRules(Program& app);

// The toolbar as the user chose it: a button by its setting (or its default), Editor and
// Wizard always, a separator when a button of the group before it shows.
bool ToolbarItemShown(const cRegistry& reg, const ToolbarButtonDef& item);
bool ButtonShown(const cRegistry& reg, int id);
void SetButtonShown(cRegistry& reg, const std::string& key, bool shown);

}  // namespace qv
