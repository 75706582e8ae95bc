#include "session/cData.h"

#include <cstdlib>
#include <fstream>
#include <unistd.h>

#include "engine/mStudio.h"
#include "session/Program.h"
#include "settings/ColorScheme.h"

namespace qv {

namespace {

std::filesystem::path EnvPath(const char* name) {
  const char* v = std::getenv(name);
  return v && *v ? std::filesystem::path(v) : std::filesystem::path();
}

// The documents folder as the user's XDG settings name it ("$HOME/Documents" form).
std::filesystem::path DocumentsFolder(const std::filesystem::path& home, const std::filesystem::path& config) {
  std::ifstream dirs(config / "user-dirs.dirs");
  std::string line;
  const std::string key = "XDG_DOCUMENTS_DIR=\"";
  while (std::getline(dirs, line)) {
    if (!line.starts_with(key) || line.size() <= key.size()) continue;
    std::string value = line.substr(key.size(), line.find('"', key.size()) - key.size());
    if (value.starts_with("$HOME")) return home / value.substr(value.size() > 5 && value[5] == '/' ? 6 : 5);
    if (value.starts_with('/')) return value;
  }
  return home.empty() ? std::filesystem::path() : home / "Documents";
}

}  // namespace

PlatformFolders PlatformFolders::FromEnvironment() {
  const auto home = EnvPath("HOME");
  PlatformFolders f;
  f.appData = EnvPath("XDG_DATA_HOME");
  if (f.appData.empty() && !home.empty()) f.appData = home / ".local" / "share";
  f.config = EnvPath("XDG_CONFIG_HOME");
  if (f.config.empty() && !home.empty()) f.config = home / ".config";
  f.documents = DocumentsFolder(home, f.config);
  std::error_code ec;
  f.program = std::filesystem::read_symlink("/proc/self/exe", ec).parent_path();
  return f;
}

void cData::InitCD(const std::string& cProdName, const std::string& cVersion, int cStdGames,
                   const std::string& cHelpFile, const std::string& cExt) {
  prodNameX_ = cProdName;
  version_ = cVersion;
  prodName_ = cProdName + " " + cVersion;
  stdGames_ = cStdGames;
  helpFile_ = cHelpFile;
  ext_ = cExt;
  Resize(cStdGames);
}

void cData::Resize(int top) {
  names_.resize(top + 1);
  original_.resize(top + 1);
  decks_.resize(top + 1);
}

std::string cData::SubFolder(const std::string& parent, const std::string& name, FolderUse use) const {
  const auto path = std::filesystem::path(parent) / name;
  if (use == FolderUse::Write) app_.cFileSys.CreateFolder(path.string());
  return path.string();
}

std::string cData::AppDir(FolderUse use) const {
  return SubFolder(SubFolder(app_.folders.appData.string(), "Velmarin Works", use), prodName_, use);
}

std::string cData::SavedFolder(FolderUse use) const {
  return SubFolder(SubFolder(app_.folders.documents.string(), "My Games", use), prodName_, use);
}

std::string cData::FavFolder(FolderUse use) const { return SubFolder(AppDir(use), "Favorites", use); }
std::string cData::GamesFolder(FolderUse use) const { return SubFolder(AppDir(use), "Custom Games", use); }
std::string cData::SchemeFolder(FolderUse use) const { return SubFolder(AppDir(use), "Color Schemes", use); }
std::string cData::PendingFolder(FolderUse use) const { return SubFolder(AppDir(use), "Pending List", use); }
std::string cData::AutoSaveFolder(FolderUse use) const { return SubFolder(SavedFolder(use), "AutoSave Files", use); }

std::string cData::ProgramFolder() const {
  // Built, the sounds lie beside the program; installed, in ../share/quorvale from it.
  const auto& program = app_.folders.program;
  std::error_code ec;
  const auto shared = program.parent_path() / "share" / "quorvale";
  if (!std::filesystem::exists(program / "Start.wav", ec) && std::filesystem::is_directory(shared, ec))
    return shared.string();
  return program.string();
}

std::string cData::UnFinFile() const { return (std::filesystem::path(AppDir()) / ("Unfin" + IncExt())).string(); }

std::string cData::DefaultSchemeFile(FolderUse use) const {
  return (std::filesystem::path(SchemeFolder(use)) / "Default Color Scheme").string();
}

void cData::CreateDefaultSchemeFile() const {
  const std::string path = DefaultSchemeFile();
  if (!app_.cFileSys.Exists(path)) WriteScheme(app_.cFileSys, path, kDefaultScheme);
}

std::string cData::DefaultCustImageFile(FolderUse use) const {
  const std::string path = (std::filesystem::path(SavedFolder(use)) / "CustomImage.bmp").string();
  if (use == FolderUse::Write && !app_.cFileSys.Exists(path)) app_.surface.background->SaveDefaultImage(path);
  return path;
}

void cData::SetGame(int Gid, const std::string& gName, bool IsOriginal, int cDeck) {
  static const char* const kDecks[] = {"Half (26 Cards)", "One (52 Cards)", "Two (104 Cards)"};
  names_[Gid] = gName;
  original_[Gid] = IsOriginal;
  if (cDeck >= 0 && cDeck <= 2) decks_[Gid] = kDecks[cDeck];
}

int cData::GetGameID(const std::string& gName) const {
  for (int id = 1; id <= TotalGames(); ++id)
    if (names_[id] == gName) return id;
  return 0;
}

void cData::Refresh_NewGames() {
  const auto created = app_.cCustom.GetStudioGames();
  const int count = std::atoi(created[0].c_str());
  Resize(stdGames_ + count);
  for (int n = 1; n <= count; ++n) SetGame(stdGames_ + n, created[n], true, 2);
}

void cData::ShowRules(const std::string& gName, int iModal) {
  const auto& dealt = app_.cGamePlay.DealtRules();
  if (!app_.cCustom.Init(gName) && app_.cGamePlay.Game_Status() != 0 && dealt && app_.cGamePlay.GameName() == gName)
    app_.cCustom = *dealt;
  app_.cSound.Rules();
  app_.surface.window.OpenWindow("Rules", iModal == 1);
}

void cData::ShowContents() { app_.surface.window.OpenWindow("Contents"); }

void FillProductData(cData& data) {
  data.InitCD("Quorvale", "6.0", kStandardGames, "quorvale.chm", "vq");
  for (int id = 1; id <= kStandardGames; ++id) data.SetGame(id, kStandardGameNames[id - 1], false, 2);
  data.Refresh_NewGames();
}

}  // namespace qv
