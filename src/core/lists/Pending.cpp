#include "lists/Pending.h"

#include <filesystem>

#include "lists/AutoSave.h"
#include "session/Program.h"
#include "session/SavedGameFile.h"

namespace qv {

namespace {
std::string PendingSuffix(int i) { return i == 0 ? "" : "-" + std::to_string(i); }

std::string Stem(const std::string& path) {
  const std::string name = std::filesystem::path(path).filename().string();
  return name.size() > 4 ? name.substr(0, name.size() - 4) : name;
}
}  // namespace

void MoveToPending(Program& app) {
  if (app.cGamePlay.IsPending()) {
    app.MsgBox(
        "This game is already in Pending List. Once added, the game will remain in Pending List till you finish it "
        "or delete it.",
        MsgStyle::Information);
    return;
  }
  const std::string stem = app.cGamePlay.GameName() + "-" + app.cGamePlay.GameNo().Text();
  const std::string path = FreeName(app.cData.PendingFolder(), stem, app.cData.IncExt(), PendingSuffix);
  std::string error;
  if (!app.cEngine.SavetoFile(path, &error)) {
    app.MsgBox("The game could not be moved to the Pending List: " + error + ". It stays on the table.",
               MsgStyle::Stop);
    return;
  }
  app.surface.window.RefreshMenus();
  app.cGamePlay.ClearArea();
}

bool SavePendingFile(Program& app, const std::string& PendFile) {
  std::string error;
  const bool saved = app.cEngine.SavetoFile(PendFile, &error);
  if (!saved)
    app.MsgBox("The pending game could not be written back to \"" + PendFile + "\": " + error + ".", MsgStyle::Stop);
  app.surface.window.RefreshMenus();
  return saved;
}

std::vector<ListedGame> ListPending(const Program& app) {
  return ListGames(app.cData.PendingFolder(FolderUse::Read), {});
}
std::vector<std::string> GetPendingFiles(const Program& app) { return Paths(ListPending(app)); }

std::vector<PendingEntry> PendingMenuEntries(const Program& app) {
  std::vector<PendingEntry> entries;
  const auto& gp = app.cGamePlay;
  if (gp.IsPending() && gp.Game_Status() == 1)
    entries.push_back({Stem(gp.PendFile()) + " (" + std::to_string(gp.Percentage()) + "% Completed) - (Now Playing)",
                       gp.PendFile(), true});
  for (const auto& [path, header] : ListPending(app))
    entries.push_back({Stem(path) + " (" + std::to_string(header.Percentage) + "% Completed)", path});
  return entries;
}

}  // namespace qv
