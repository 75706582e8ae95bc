#include "session/StartUp.h"

#include "lists/AutoSave.h"
#include "scores/Players.h"
#include "session/Program.h"
#include "settings/SettingKeys.h"
#include "settings/mCustomize.h"

namespace qv {

namespace {

// The last run did not stop in order, so its game was never ended: it waits in its file.
// A game of the pending list is in its own file already; the unfinished game comes back
// at the first game when the Options keep games, and otherwise is kept as an auto-saved copy.
void TakeUpCrashedGame(Program& app) {
  if (app.cRegistry.Get(setting::UnFin) != 1 || app.cRegistry.Get(setting::GameSave) == 1) return;
  if (AutoSaveFile(app, app.cData.UnFinFile())) app.cRegistry.Set(setting::UnFin, 0);
}

}  // namespace

void StartUp(Program& app) {
  // A program started beside another one (quorvale-cli beside the window) leaves the
  // session's files and marks to the one that keeps them.
  if (app.session.Acquire(app.cData.AppDir() + "/session.lock")) {
    if (app.cRegistry.Get(setting::SessionRunning) == 1) TakeUpCrashedGame(app);
    app.cRegistry.Set(setting::SessionRunning, 1);
  }
  ApplyBackground(app);
  app.cData.SesStartTime(GeneralDate(app.surface.clock.Now()));
  if (PlayerCount(app.cRegistry) == 0) SetPlayer(app.cRegistry, 1, "Player1", true);
  SetWallTimer(app);
  if (app.cRegistry.Get(setting::WPTimerValue) == 5) PickWallpaper(app);
  app.cSound.Preload();
}

void ShutDown(Program& app) {
  app.cGamePlay.Unload();
  if (!app.session.Held()) return;
  app.cRegistry.Set(setting::SessionRunning, 0);
  app.session.Release();
}

bool StopProgram(Program& app, std::function<void()> stopLater) {
  if (app.motion.state() == Motion::State::Stopped) return true;
  if (!app.motion.RequestStop(std::move(stopLater))) return false;
  ShutDown(app);
  return true;
}

}  // namespace qv
