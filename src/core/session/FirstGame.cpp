#include "session/FirstGame.h"

#include "lists/AutoSave.h"
#include "session/Program.h"
#include "settings/SettingKeys.h"

namespace qv {

namespace {

constexpr const char* kQuestion =
    "An unfinished game from previous session exists! If you start this game then you will loose the "
    "previous Game.\r\nClick 'Yes' to start this game or 'No' to start the previous game.";

// Plays the unfinished game; one that is missing or does not read is given up (its file
// stays where it is) and the selection opens instead.
void ResumeUnfinished(Program& app) {
  if (app.cGamePlay.PlayFile(app.cData.UnFinFile(), false)) return;
  if (app.motion.state() == Motion::State::Stopped) return;  // refused by the stop, not unreadable
  app.cRegistry.Set(setting::UnFin, 0);
  app.surface.window.OpenWindow("Select");
}

// The user chose another game over the unfinished one: like any game given up, it is kept
// as an auto-saved copy when the Options say so, and is not offered again.
void GiveUpUnfinished(Program& app) {
  if (app.cRegistry.Get(setting::EnableInc) == 1) AutoSaveFile(app, app.cData.UnFinFile());
  app.cRegistry.Set(setting::UnFin, 0);
}

// One step from the file's deal to the unfinished game given up: a stop meanwhile waits for
// both, so it never keeps the new game where the unfinished one is still to be copied from.
bool PlayInsteadOfUnfinished(Program& app, const std::string& path) {
  Motion::Step step(app.motion);
  if (!step || !app.cGamePlay.PlayFile(path, true)) return false;
  GiveUpUnfinished(app);
  return true;
}

}  // namespace

void FirstGame(Program& app, const std::string& path) {
  // The question and the selection come first, with no step held: a stop while either is
  // open need not wait for it. Each way of starting a game takes its own step.
  // The unfinished game is the game of the program that keeps the session.
  const bool unfinished = app.session.Held() && app.cRegistry.Get(setting::UnFin) == 1;
  if (path.empty()) {
    if (unfinished) ResumeUnfinished(app);
    else app.surface.window.OpenWindow("Select");
    return;
  }
  if (!unfinished) {
    if (!app.cGamePlay.PlayFile(path, true)) app.surface.window.OpenWindow("Select");
    return;
  }
  const Answer answer = app.MsgBox(kQuestion, MsgStyle::YesNoQuestion);
  if (app.motion.state() == Motion::State::Stopped) {
    // Stopped with the question open: nothing was decided, so the unfinished game stays offered.
    app.cRegistry.Set(setting::UnFin, 1);
    return;
  }
  if (answer == Answer::Yes && PlayInsteadOfUnfinished(app, path)) return;
  ResumeUnfinished(app);
}

}  // namespace qv
