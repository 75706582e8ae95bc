// The created-game side of cCustom: its .gam file, the list of created games, the preview.
#include "created/GamFile.h"
#include "engine/cCustom.h"
#include "lists/ValidName.h"
#include "session/Program.h"
#include "surface/PictureBox.h"

namespace qv {

bool cCustom::LoadStudioFile(const std::string& gName) {
  for (const std::string& path : GamFilesOf(app_->cData.GamesFolder(FolderUse::Read), gName)) {
    const auto rules = ReadGamFile(path);
    if (!rules) continue;
    // The name held inside the file, not the one asked for.
    GameName = rules->GameName;
    Home(rules->HPiles, rules->HOrder, rules->HSpace, rules->HAK, rules->HMulti, rules->Suits, rules->MOrder);
    return true;
  }
  return false;
}

std::vector<std::string> cCustom::GetStudioGames() const {
  std::vector<std::string> games = ListGamNames(app_->cData.GamesFolder(FolderUse::Read));
  games.insert(games.begin(), std::to_string(games.size()));
  return games;
}

bool cCustom::SaveStudioGame(const std::string& cGameName, bool mAdd, bool mGameEdit) {
  GameName = cGameName;  // a refused save leaves the refused text here
  if (GameName.empty() || !IsValidName(GameName) || !GameNameFits(GameName)) {
    app_->MsgBox("Please Enter a valid Game Name", MsgStyle::Plain);
    return false;
  }
  const std::string folder = app_->cData.GamesFolder();
  const std::string path = folder + "/" + GameName + std::string(kGamExt);
  const auto existing = GamFilesOf(folder, GameName);
  if (mAdd && !mGameEdit && !existing.empty() &&
      app_->MsgBox("Another Game exists with the same name. Do you want to overwrite ?", MsgStyle::YesNoStop) !=
          Answer::Yes)
    return false;
  std::string error;
  if (!app_->cFileSys.WriteText(path, FormatGamFile(*this), &error)) {
    app_->MsgBox("The game could not be saved to \"" + path + "\": " + error + ".", MsgStyle::Stop);
    return false;
  }
  // The same name with its extension in another case would list it twice.
  for (const std::string& other : existing)
    if (other != path) app_->cFileSys.Delete(other);
  app_->MsgBox("Successfully Saved Game : " + GameName, MsgStyle::Information);
  app_->cData.Refresh_NewGames();
  app_->surface.window.RefreshMenus();
  return true;
}

void cCustom::Update_Pic(IPictureBox& pic) const {
  const cImages& images = app_->cImages;
  pic.Clear();
  pic.Paint(images.ReservePicture(RPiles, RCards), 0, 0);
  pic.Paint(images.GoalPicture(GBase, GCards), 125, 0);
  pic.Paint(images.HomePicture(HPiles, Suits), 0, 36);
}

}  // namespace qv
