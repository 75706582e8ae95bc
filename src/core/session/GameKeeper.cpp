#include "session/GameKeeper.h"

#include "session/Program.h"
#include "settings/SettingKeys.h"

namespace qv {

namespace {
constexpr int64_t kWriteGapMs = 1000;
}

void GameKeeper::Tick() {
  const cGamePlay& gp = app_.cGamePlay;
  if (!gp.IsPending() && !app_.session.Held()) return;  // the unfinished game is another program's
  if (gp.Game_Status() != 1 || app_.motion.state() != Motion::State::Still || app_.drag.Dragging) return;
  // A won game is recorded and must not come back.
  if (app_.cEngine.TotalGoalCards() == app_.cGames.TotalCards()) return;
  const int revision = app_.cEngine.Revision();
  const int64_t now = app_.surface.clock.Millis();
  if (revision == written_ || now - lastWriteMs_ < kWriteGapMs) return;
  lastWriteMs_ = now;
  // A write that fails is tried again a second later; the orderly stop says so if it still fails.
  if (!app_.cEngine.SavetoFile(gp.IsPending() ? gp.PendFile() : app_.cData.UnFinFile())) return;
  written_ = revision;
  if (!gp.IsPending() && app_.cRegistry.Get(setting::UnFin) != 1) app_.cRegistry.Set(setting::UnFin, 1);
}

void GameKeeper::Forget() {
  written_ = -1;
  if (app_.session.Held() && app_.cRegistry.Get(setting::UnFin) != 0) app_.cRegistry.Set(setting::UnFin, 0);
}

}  // namespace qv
