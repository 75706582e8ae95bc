#include "session/Commands.h"

#include <algorithm>

#include "lists/Pending.h"
#include "session/CommandTable.h"
#include "session/Program.h"
#include "settings/SettingKeys.h"

namespace qv {

namespace {

int Speed(const Program& app, const IntSetting& s) { return app.cRegistry.Get(s); }

// What may run while cards move: the stop (which waits for the move's end), the end of a
// replay after its current step, and the help. Everything else is dropped, not queued.
bool RunsWhileMoving(const std::string& key) {
  return key == "Exit" || key == "Stop" || key == "Contents" || key == "Rules" || key == "About";
}

// Commands the session carries out itself; false for a key it does not know.
bool RunSessionCommand(Program& app, const std::string& key) {
  auto& gp = app.cGamePlay;
  auto& e = app.cEngine;
  auto& window = app.surface.window;
  if (key == "New") {
    gp.PlayRandom();
  } else if (key == "Restart") {
    gp.PlayNumber(gp.GameName(), gp.GameNo());
  } else if (key == "Close") {
    if (gp.Game_Status() == 1) gp.EndGame(0, false);
    else gp.ClearArea();
    app.cSound.CloseGame();
  } else if (key == "Undo" || key == "Redo") {
    int speed = Speed(app, setting::UndoSpeed);
    key == "Undo" ? e.Undo(speed) : e.Redo(speed);
  } else if (key == "UndoAll" || key == "RedoAll") {
    int speed = Speed(app, setting::UndoallSpeed);
    key == "UndoAll" ? e.UndoAll(speed) : e.RedoAll(speed);
  } else if (key == "AutoPlay") {
    ToggleAutoPlay(app);
  } else if (key == "Pause") {
    TogglePause(app);
  } else if (key == "ViewTool") {
    ToggleToolbar(app);
  } else if (key == "Forward" || key == "Back") {
    window.EnableTimer(key == "Forward" ? Timer::Forward : Timer::Backward, true);
  } else if (key == "ReplayAll") {
    int speed = 1;
    e.UndoAll(speed);
    window.EnableTimer(Timer::Forward, true);
  } else if (key == "AddPend") {
    MoveToPending(app);
  } else {
    return false;
  }
  return true;
}

}  // namespace

void ExecCommand(Program& app, const std::string& key) {
  if (app.motion.Moving() && !RunsWhileMoving(key)) return;
  StopReplay(app);
  if (key == "Exit") return app.surface.window.CloseMain();
  if (key == "Stop" || key == "Recent") return;
  // A hint changes nothing on the table: no step is held while it searches.
  if (key == "Hint") return app.surface.window.OpenWindow(key);
  {
    // Windows open outside the step: a stop while one is open need not wait for it.
    Motion::Step step(app.motion);
    if (!step || RunSessionCommand(app, key)) return;
  }
  if (key == "Rules") return ShowGameRules(app);
  if (key == "MovesMan" && app.cEngine.GetTransTop() <= 0) return;
  if (key == "AddFav" && app.cGamePlay.Game_Status() == 0) return;
  app.surface.window.OpenWindow(key);
}

bool IsReplaying(const Program& app) {
  return app.surface.window.TimerEnabled(Timer::Forward) || app.surface.window.TimerEnabled(Timer::Backward);
}

bool CommandEnabled(const Program& app, const std::string& key) {
  if (app.motion.Moving() && !RunsWhileMoving(key)) return false;
  const int status = app.cGamePlay.Game_Status();
  const bool R = status == 1, T = status > 0, Q = !IsReplaying(app);
  const auto& e = app.cEngine;
  const bool U = e.UndoPossible() && Q && T, D = e.RedoPossible() && Q && T, S = e.MoveStarted() && Q && T;
  if (key == "Restart" || key == "Save" || key == "Pause" || key == "AddPend") return R;
  if (key == "Close" || key == "AddFav") return T;
  if (key == "Undo" || key == "UndoAll" || key == "Back") return U;
  if (key == "Redo" || key == "RedoAll" || key == "Forward") return D;
  if (key == "ReplayAll" || key == "MovesMan" || key == "History") return S;
  if (key == "Hint") return R && Q;
  if (key == "BackToWinnable") return U;
  return true;  // AutoPlay too: its -1 in the game definition means enabled
}

bool AutoPlayChecked(const Program& app) { return app.cRegistry.Get(setting::AutoPlay) != 0; }
bool AutoPlayPressed(const Program& app) { return app.cRegistry.Get(setting::AutoPlay) == 1; }
bool ToolbarChecked(const Program& app) { return app.cRegistry.Get(setting::ShowToolbar) != 0; }

void StopReplay(Program& app) {
  app.surface.window.SetStopEnabled(false);
  app.surface.window.EnableTimer(Timer::Backward, false);
  app.surface.window.EnableTimer(Timer::Forward, false);
}

void ReplayTick(Program& app, bool forward) {
  // A tick that comes while the last step still moves, or while a card hangs on the
  // pointer, waits for the next one.
  Motion::Step step(app.motion);
  if (!step || app.drag.Dragging) return;
  auto& window = app.surface.window;
  window.EnableTimer(forward ? Timer::Backward : Timer::Forward, false);
  window.SetStopEnabled(true);
  int speed = Speed(app, setting::ReplaySpeed);
  const bool stepped = forward ? app.cEngine.Redo(speed) : app.cEngine.Undo(speed);
  if (!stepped) StopReplay(app);
}

void TogglePause(Program& app) {
  app.cGamePlay.PauseGame(!app.cGamePlay.PauseStatus());
  app.cSound.PauseGame();
}

void ToggleAutoPlay(Program& app) {
  if (app.cRegistry.Get(setting::AutoPlay) == 1) {
    app.cRegistry.Set(setting::AutoPlay, 0);
    return;
  }
  app.cRegistry.Set(setting::AutoPlay, 1);
  app.cPlay.AutoMoveCheck();
}

void ToggleToolbar(Program& app) {
  app.cRegistry.Set(setting::ShowToolbar, app.cRegistry.Get(setting::ShowToolbar) == 1 ? 0 : 1);
}

void ShowGameRules(Program& app) {
  if (app.cGamePlay.Game_Running()) app.cData.ShowRules(app.cGamePlay.GameName(), 0);
  else app.cData.ShowContents();
}

bool ButtonShown(const cRegistry& reg, int id) {
  const ToolbarButtonDef& b = ToolbarButton(id);
  return reg.RegGetInt(section::Toolbar, b.key, static_cast<int16_t>(b.fallback)) == 1;
}

void SetButtonShown(cRegistry& reg, const std::string& key, bool shown) {
  reg.RegSaveInt(section::Toolbar, key, shown ? 1 : 0);
}

bool ToolbarItemShown(const cRegistry& reg, const ToolbarButtonDef& item) {
  if (item.id > 0) return ButtonShown(reg, item.id);
  if (!std::string_view(item.key).starts_with("Sep")) return true;  // Editor and Wizard
  const auto& layout = ToolbarLayout();
  auto it = std::find_if(layout.begin(), layout.end(), [&](const auto& b) { return &b == &item; });
  while (it != layout.begin()) {
    --it;
    if (std::string_view(it->key).starts_with("Sep")) break;
    if (it->id > 0 && ButtonShown(reg, it->id)) return true;
  }
  return false;
}

}  // namespace qv
