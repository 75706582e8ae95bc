#include "lists/AutoSave.h"

#include <algorithm>
#include <filesystem>

#include "session/AtomicFile.h"
#include "session/Program.h"
#include "session/SavedGameFile.h"
#include "settings/SettingKeys.h"

namespace qv {

namespace {

bool EndsWithIgnoringCase(const std::string& name, const std::string& ext) {
  if (name.size() < ext.size()) return false;
  return std::equal(ext.begin(), ext.end(), name.end() - static_cast<long>(ext.size()),
                    [](char a, char b) { return std::tolower(static_cast<unsigned char>(a)) == std::tolower(static_cast<unsigned char>(b)); });
}

std::string CopySuffix(int i) { return i == 0 ? "" : "-(" + std::to_string(i) + ")"; }

}  // namespace

std::vector<ListedGame> ListGames(const std::string& folder, const std::vector<std::string>& extensions) {
  std::vector<ListedGame> games;
  std::error_code ec;
  for (const auto& entry : std::filesystem::directory_iterator(folder, ec)) {
    const std::string name = entry.path().filename().string();
    const bool kind = extensions.empty() || std::any_of(extensions.begin(), extensions.end(), [&](const auto& e) {
                        return EndsWithIgnoringCase(name, e);
                      });
    if (!kind || !entry.is_regular_file(ec)) continue;
    if (auto header = ReadGameHeader(entry.path().string())) games.push_back({entry.path().string(), std::move(*header)});
  }
  return games;
}

std::vector<std::string> Paths(const std::vector<ListedGame>& games) {
  std::vector<std::string> paths;
  for (const auto& g : games) paths.push_back(g.path);
  return paths;
}

std::vector<ListedGame> ListAutoSaves(const Program& app, bool Won) {
  return ListGames(app.cData.AutoSaveFolder(FolderUse::Read), {Won ? app.cData.FinExt() : app.cData.IncExt()});
}

std::string FreeName(const std::string& folder, const std::string& stem, const std::string& ext,
                     std::string (*suffix)(int)) {
  for (int i = 0;; ++i) {
    const auto path = std::filesystem::path(folder) / (stem + suffix(i) + ext);
    std::error_code ec;
    if (!std::filesystem::exists(path, ec)) return path.string();
  }
}

namespace {

// The first free name for a copy of a game: "Name-Number", then "-(1)", "-(2)", ...
std::string AutoSavePath(const Program& app, const std::string& name, const GameNo& no, bool Won) {
  return FreeName(app.cData.AutoSaveFolder(), name + "-" + no.Text(), Won ? app.cData.FinExt() : app.cData.IncExt(),
                  CopySuffix);
}

bool Kept(Program& app, bool written, const std::string& error) {
  if (!written) app.MsgBox("The game could not be kept in the AutoSave folder: " + error + ".", MsgStyle::Stop);
  return written;
}

}  // namespace

bool AutoSaveGame(Program& app, bool Won, bool always) {
  if (!always && app.cRegistry.Get(Won ? setting::EnableFin : setting::EnableInc) != 1) return true;
  const auto& gp = app.cGamePlay;
  std::string error;
  return Kept(app, app.cEngine.SavetoFile(AutoSavePath(app, gp.GameName(), gp.GameNo(), Won), &error), error);
}

bool AutoSaveFile(Program& app, const std::string& path) {
  const std::optional<std::string> bytes = ReadWholeFile(path);
  const std::optional<GameHeader> header = ReadGameHeader(path);
  std::string error = "the file \"" + path + "\" does not read";
  if (!bytes || !header) return Kept(app, false, error);
  const std::string copy = AutoSavePath(app, header->GameName, header->GameNo, false);
  return Kept(app, app.cFileSys.WriteText(copy, *bytes, &error), error);
}

std::vector<std::string> GetAutoSaveFiles(const Program& app, bool Won) { return Paths(ListAutoSaves(app, Won)); }

bool EmptyAutoSave(Program& app, bool Won) {
  if (app.MsgBox("Are you sure you want to delete all Games ?", MsgStyle::YesNoStop) != Answer::Yes) return false;
  for (const auto& file : GetAutoSaveFiles(app, Won)) app.cFileSys.Delete(file);
  return true;
}

std::vector<std::string> GetSavedFiles(const Program& app) {
  return Paths(ListGames(app.cData.SavedFolder(FolderUse::Read), {app.cData.FinExt(), app.cData.IncExt()}));
}

}  // namespace qv
