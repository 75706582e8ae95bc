#pragma once

#include <optional>
#include <string>
#include <vector>

#include "engine/GameNo.h"

namespace qv {

class Program;

// Favourites are bookmarks of deals: one small file each, named by the user, in the
// favourites folder or in one of its folders (two levels, no deeper). The file holds one
// record: "Spider",123456,"Player1",#11/17/2026 6:41:26 AM#. The number keeps its form,
// quoted when it was typed.
struct FavRecord {
  std::string GameName;
  qv::GameNo GameNo;
  std::string Player;
  std::string Date;
};

std::string FavRecordLine(const FavRecord& rec);
// std::nullopt for a file with no whole record (a truncated file, a stray file).
std::optional<FavRecord> ReadFavFile(const std::string& path);

// A favourite that shows: its file, its name and its record.
struct FavGame {
  std::string path;
  std::string name;
  FavRecord record;
};
struct FavFolderNode {
  std::string path;
  std::string name;
  std::vector<FavGame> games;
};
// The whole tree as menus and dialogs show it: folders with their games, then the root's
// games, each by name ignoring case (a folder lists in no order). A favourite whose game
// does not exist now, or whose record does not read, is left out; its file stays.
struct FavTree {
  std::vector<FavFolderNode> folders;
  std::vector<FavGame> games;
  bool Empty() const { return folders.empty() && games.empty(); }
};
FavTree ReadFavTree(const Program& app);
// The folders directly in the favourites folder, full paths by name.
std::vector<std::string> GetFavFolders(const Program& app);
// The favourites of one folder whose game exists, full paths by name.
std::vector<std::string> GetFavFiles(const Program& app, const std::string& folder);

// "<game name> - <game number>": the name a new favourite is offered.
std::string DefaultFavName(const Program& app);
// Writes the deal on the table as a favourite (the default name in the root when `path`
// is empty) and rebuilds the menus. False, with a message shown, when it cannot be written.
bool AddFavFile(Program& app, const std::string& path = "");

enum FavKind { kFavGame = 1, kFavFolder = 2 };
// Whether `name` may become a game (kind 1) or folder (kind 2) in `folder`. An empty name
// (a cancelled input box) is false with no message; the others say why.
bool ValidateFavName(Program& app, const std::string& name, int kind, const std::string& folder);

// What Organize Favorites changes on disk; each checks first, says why it refuses, and has
// the menus rebuilt after a change.
bool CreateFavFolder(Program& app, const std::string& name);
bool RenameFav(Program& app, const std::string& path, const std::string& newName);
// Asks first: Yes/No with the stop icon, titled "Delete Game" or "Delete Folder".
bool DeleteFav(Program& app, const std::string& path);
bool MoveFav(Program& app, const std::string& path, const std::string& toFolder);

}  // namespace qv
