#include "scores/Finish.h"

#include <filesystem>

#include "lists/AutoSave.h"
#include "lists/Favorites.h"
#include "lists/Recent.h"
#include "session/Program.h"
#include "settings/SettingKeys.h"

namespace qv {

void RecordWin(Program& app) {
  cGamePlay& gp = app.cGamePlay;
  app.keeper.Forget();
  app.surface.window.EnableTimer(Timer::Game, false);
  app.cSound.Win();
  AutoSaveGame(app, true);
  app.cScore.AddSesGame(1);
  app.cScore.AddScore(1);
  if (gp.IsPending() && !gp.PendFile().empty()) {
    app.cFileSys.Delete(gp.PendFile());
    app.surface.window.RefreshMenus();
  }
}

std::string FinishSavePath(const Program& app, const std::string& folder) {
  const cGamePlay& gp = app.cGamePlay;
  const std::string name = gp.GameName() + "-" + gp.GameNo().Text() + app.cData.FinExt();
  return (std::filesystem::path(folder) / name).string();
}

std::string FinishSavePath(const Program& app) { return FinishSavePath(app, app.cData.SavedFolder()); }

void CloseFinish(Program& app, const std::string& savePath) {
  if (app.cRegistry.Get(setting::SaveFile) == 1 && !savePath.empty() && app.cEngine.SavetoFile(savePath))
    AddRecent(app, kRecentSaved, savePath);
  if (app.cRegistry.Get(setting::AddtoFav) == 1) AddFavFile(app);
  app.cGamePlay.ClearArea();
  app.surface.window.RefreshMenus();
}

}  // namespace qv
