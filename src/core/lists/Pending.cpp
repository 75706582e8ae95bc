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
  app.cSound.AddPend();
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
  std::vector<ListedGame> games = ListGames(app.cData.PendingFolder(FolderUse::Read), {});
  // The file of the pending game on the table is its live copy, not a game that waits.
  const auto& gp = app.cGamePlay;
  if (gp.Game_Status() == 1 && gp.IsPending()) std::erase_if(games, [&](const auto& g) { return g.path == gp.PendFile(); });
  return games;
}

std::vector<std::string> GetPendingFiles(const Program& app) { return Paths(ListPending(app)); }

std::vector<PendingEntry> PendingMenuEntries(const Program& app) {
  std::vector<PendingEntry> entries;
  const auto& gp = app.cGamePlay;
  for (const auto& [path, header] : ListGames(app.cData.PendingFolder(FolderUse::Read), {})) {
    const bool onTable = path == gp.PendFile();
    // Its entry says so while the game is taken up, and goes at the rebuild after that.
    if (onTable && gp.Game_Status() == 1) continue;
    std::string caption = Stem(path) + " (" + std::to_string(header.Percentage) + "% Completed)";
    entries.push_back({onTable ? caption + " - (Now Playing)" : caption, path, onTable});
  }
  return entries;
}

}  // namespace qv
