#pragma once

#include <cstdint>
#include <filesystem>
#include <string>
#include <vector>

namespace qv {

class Program;

// Where the platform keeps a user's files. Empty paths build folders below the current one.
struct PlatformFolders {
  std::filesystem::path appData;    // $XDG_DATA_HOME, else ~/.local/share
  std::filesystem::path documents;  // the XDG documents folder, else ~/Documents
  std::filesystem::path config;     // $XDG_CONFIG_HOME, else ~/.config
  std::filesystem::path program;    // the folder of the running executable
  static PlatformFolders FromEnvironment();
};

// Why a folder of the user's files is asked for.
enum class FolderUse { Write, Read };

// Product facts, the folders of the user's files, and the list of games.
class cData {
 public:
  explicit cData(Program& app) : app_(app) {}

  void InitCD(const std::string& cProdName, const std::string& cVersion, int cStdGames,
              const std::string& cHelpFile, const std::string& cExt);
  const std::string& ProdName() const { return prodName_; }
  const std::string& ProdNameX() const { return prodNameX_; }
  const std::string& Version() const { return version_; }
  int TotalGames() const { return static_cast<int>(names_.size()) - 1; }
  const std::string& Ext() const { return ext_; }
  std::string IncExt() const { return "." + ext_ + "0"; }
  std::string FinExt() const { return "." + ext_ + "1"; }
  const std::string& HelpFile() const { return helpFile_; }

  // A folder asked for writing is made when missing, every time, so a folder deleted
  // meanwhile comes back. One asked for reading a list is only named: looking at the
  // lists leaves an empty home empty, and a missing folder lists nothing.
  std::string AppDir(FolderUse use = FolderUse::Write) const;
  std::string FavFolder(FolderUse use = FolderUse::Write) const;
  std::string GamesFolder(FolderUse use = FolderUse::Write) const;
  std::string SchemeFolder(FolderUse use = FolderUse::Write) const;
  std::string PendingFolder(FolderUse use = FolderUse::Write) const;
  std::string SavedFolder(FolderUse use = FolderUse::Write) const;
  std::string AutoSaveFolder(FolderUse use = FolderUse::Write) const;
  std::string ProgramFolder() const;
  std::string UnFinFile() const;
  // The scheme "Default Color Scheme", green above dark red; Create writes it when missing.
  std::string DefaultSchemeFile(FolderUse use = FolderUse::Write) const;
  void CreateDefaultSchemeFile() const;
  // "CustomImage.bmp", written from the library's picture when missing (Write only).
  std::string DefaultCustImageFile(FolderUse use = FolderUse::Write) const;

  void SetGame(int Gid, const std::string& gName, bool IsOriginal, int cDeck);
  bool GameExists(const std::string& gName) const { return GetGameID(gName) != 0; }
  const std::string& GetGName(int Gid) const { return names_[Gid]; }
  bool IsOriginal(const std::string& gName) const { return original_[GetGameID(gName)]; }
  const std::string& GetDeck(const std::string& gName) const { return decks_[GetGameID(gName)]; }
  int GetGameID(const std::string& gName) const;
  const std::string& SesStartTime() const { return sesStartTime_; }
  void SesStartTime(const std::string& t) { sesStartTime_ = t; }
  void Refresh_NewGames();
  // The rules page of a game, beside the table or (iModal 1) blocking; the game on the table
  // shows the rules it was dealt with even when its created game is gone.
  void ShowRules(const std::string& gName, int iModal);
  void ShowContents();

 private:
  std::string SubFolder(const std::string& parent, const std::string& name, FolderUse use) const;
  void Resize(int top);

  Program& app_;
  std::string prodName_, prodNameX_, version_, helpFile_, ext_, sesStartTime_;
  int stdGames_ = 0;
  std::vector<std::string> names_{""};
  std::vector<bool> original_{false};
  std::vector<std::string> decks_{""};
};

void FillProductData(cData& data);

}  // namespace qv
