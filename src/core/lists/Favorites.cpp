#include "lists/Favorites.h"

#include <algorithm>
#include <filesystem>
#include <fstream>

#include "lists/ValidName.h"
#include "scores/Players.h"
#include "session/Program.h"
#include "session/TextCodec.h"
#include "session/TextRecord.h"

namespace fs = std::filesystem;

namespace qv {

namespace {

// A record is one short line; a long file is no favourite, and is not read whole.
constexpr std::streamsize kMaxRecord = 4096;

std::string Lower(std::string s) {
  std::transform(s.begin(), s.end(), s.begin(), [](unsigned char c) { return static_cast<char>(std::tolower(c)); });
  return s;
}

// Entries of a folder of one kind, by name ignoring case.
std::vector<fs::path> Entries(const std::string& folder, bool folders) {
  std::vector<fs::path> found;
  std::error_code ec;
  for (fs::directory_iterator it(folder, ec), end; !ec && it != end; it.increment(ec)) {
    const std::string name = it->path().filename().string();
    if (name.starts_with(".")) continue;  // a desktop's own notes (".directory") are no favourites
    if (folders ? it->is_directory(ec) : it->is_regular_file(ec)) found.push_back(it->path());
  }
  std::sort(found.begin(), found.end(), [](const fs::path& a, const fs::path& b) {
    return Lower(a.filename().string()) < Lower(b.filename().string());
  });
  return found;
}

std::vector<FavGame> GamesIn(const Program& app, const std::string& folder) {
  std::vector<FavGame> games;
  for (const fs::path& p : Entries(folder, false)) {
    auto rec = ReadFavFile(p.string());
    if (rec && app.cData.GameExists(rec->GameName)) games.push_back({p.string(), p.filename().string(), *rec});
  }
  return games;
}

std::string Join(const std::string& folder, const std::string& name) { return (fs::path(folder) / name).string(); }

bool Refuse(Program& app, const std::string& text) {
  app.MsgBox(text, MsgStyle::Stop);
  return false;
}

bool Changed(Program& app) {
  app.surface.window.RefreshMenus();
  return true;
}

}  // namespace

std::string FavRecordLine(const FavRecord& rec) {
  return QuotedField(rec.GameName) + "," + RecordGameNo(rec.GameNo) + "," + QuotedField(rec.Player) + "," +
         DateField(rec.Date);
}

std::optional<FavRecord> ReadFavFile(const std::string& path) {
  std::ifstream in(path, std::ios::binary);
  std::string text(kMaxRecord, '\0');
  in.read(text.data(), kMaxRecord);
  text.resize(static_cast<size_t>(in.gcount()));
  const auto lines = SplitLines(text);
  if (lines.empty()) return std::nullopt;
  const auto fields = SplitRecord(AsUtf8(lines[0]));
  if (!fields || fields->size() != 4) return std::nullopt;
  const auto& f = *fields;
  auto number = ReadRecordGameNo(f[1]);
  if (f[0].kind != RecordField::Quoted || f[0].text.empty() || !number || f[2].kind != RecordField::Quoted ||
      f[3].kind != RecordField::Date)
    return std::nullopt;
  return FavRecord{f[0].text, *number, f[2].text, f[3].text};
}

FavTree ReadFavTree(const Program& app) {
  FavTree tree;
  const std::string root = app.cData.FavFolder(FolderUse::Read);
  for (const fs::path& folder : Entries(root, true))
    tree.folders.push_back({folder.string(), folder.filename().string(), GamesIn(app, folder.string())});
  tree.games = GamesIn(app, root);
  return tree;
}

std::vector<std::string> GetFavFolders(const Program& app) {
  std::vector<std::string> paths;
  for (const fs::path& p : Entries(app.cData.FavFolder(FolderUse::Read), true)) paths.push_back(p.string());
  return paths;
}

std::vector<std::string> GetFavFiles(const Program& app, const std::string& folder) {
  std::vector<std::string> paths;
  for (const FavGame& g : GamesIn(app, folder)) paths.push_back(g.path);
  return paths;
}

std::string DefaultFavName(const Program& app) {
  return app.cGamePlay.GameName() + " - " + app.cGamePlay.GameNo().Text();
}

bool AddFavFile(Program& app, const std::string& path) {
  const std::string target = path.empty() ? Join(app.cData.FavFolder(), DefaultFavName(app)) : path;
  const FavRecord rec{app.cGamePlay.GameName(), app.cGamePlay.GameNo(), GetCurPlayer(app.cRegistry),
                      GeneralDate(app.surface.clock.Now())};
  std::string error;
  if (!app.cFileSys.WriteText(target, FavRecordLine(rec) + "\r\n", &error))
    return Refuse(app, "The game could not be added to the Favorites: " + error + ".");
  return Changed(app);
}

bool ValidateFavName(Program& app, const std::string& name, int kind, const std::string& folder) {
  if (name.empty()) return false;
  if (!IsValidName(name) || name == "." || name == "..")
    return Refuse(app, "Name should not contain these characters : /\\:*?\"<>|");
  std::error_code ec;
  const fs::path target = fs::path(folder) / name;
  if (kind == kFavFolder && fs::is_directory(target, ec)) return Refuse(app, "Folder already exists");
  if (kind == kFavGame && fs::exists(target, ec)) return Refuse(app, "Game already exists");
  return true;
}

bool CreateFavFolder(Program& app, const std::string& name) {
  const std::string root = app.cData.FavFolder();
  if (!ValidateFavName(app, name, kFavFolder, root)) return false;
  std::error_code ec;
  if (!fs::create_directory(Join(root, name), ec)) return Refuse(app, "The folder could not be created.");
  return Changed(app);
}

bool RenameFav(Program& app, const std::string& path, const std::string& newName) {
  std::error_code ec;
  const bool folder = fs::is_directory(path, ec);
  const std::string parent = fs::path(path).parent_path().string();
  if (!ValidateFavName(app, newName, folder ? kFavFolder : kFavGame, parent)) return false;
  std::string error;
  if (!app.cFileSys.Rename(path, Join(parent, newName), &error)) return Refuse(app, "Cannot rename: " + error + ".");
  return Changed(app);
}

bool DeleteFav(Program& app, const std::string& path) {
  std::error_code ec;
  const bool folder = fs::is_directory(path, ec);
  const std::string name = fs::path(path).filename().string();
  // These boxes carry their own titles, not the program's name.
  const Answer a =
      folder ? app.surface.dialogs.MsgBox("Are you sure you want to remove the Folder " + name + " and all its contents ?",
                                          MsgStyle::YesNoStop, "Delete Folder")
             : app.surface.dialogs.MsgBox("Are you sure you want to delele the Game " + name + " ?", MsgStyle::YesNoStop,
                                          "Delete Game");
  if (a != Answer::Yes) return false;
  if (!(folder ? app.cFileSys.DeleteFolder(path) : app.cFileSys.Delete(path)))
    return Refuse(app, "\"" + name + "\" could not be deleted.");
  return Changed(app);
}

bool MoveFav(Program& app, const std::string& path, const std::string& toFolder) {
  const fs::path from(path);
  if (from.parent_path() == fs::path(toFolder)) return Refuse(app, "Same Source and Destination Folders !");
  const std::string target = Join(toFolder, from.filename().string());
  if (app.cFileSys.Exists(target)) return Refuse(app, "Game Already Exists in the destination Folder.");
  std::string error;
  if (!app.cFileSys.Rename(path, target, &error)) return Refuse(app, "Cannot move: " + error + ".");
  return Changed(app);
}

}  // namespace qv
