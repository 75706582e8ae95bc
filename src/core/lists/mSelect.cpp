#include "lists/mSelect.h"

#include <filesystem>
#include <functional>

#include "engine/mStudio.h"
#include "lists/AutoSave.h"
#include "lists/Favorites.h"
#include "lists/GameNumbers.h"
#include "lists/Pending.h"
#include "lists/Recent.h"
#include "scores/ScoreText.h"
#include "session/Program.h"
#include "settings/SettingKeys.h"

namespace fs = std::filesystem;

namespace qv {

namespace {

bool Is(const std::string& category, std::initializer_list<const char*> keys) {
  for (const char* k : keys)
    if (category == k) return true;
  return false;
}

std::string Stem(const std::string& path) { return fs::path(path).stem().string(); }
std::string Percent(const GameHeader& h) { return " (" + std::to_string(h.Percentage) + "%)"; }
bool IsHot(const Program& app, const std::string& name) {
  return app.cRegistry.RegGetInt(section::HotGames, name, 0) == 1;
}

void AddGames(const Program& app, SelectNode& root, const std::function<bool(const std::string&)>& wanted) {
  for (int id = 1; id <= app.cData.TotalGames(); ++id) {
    const std::string& name = app.cData.GetGName(id);
    if (wanted(name)) root.children.push_back({name, name, name, {}});
  }
}

// Files listed by their headers: auto-saves, the pending list.
void AddListed(SelectNode& root, const std::vector<ListedGame>& games, bool percent) {
  for (const auto& [path, h] : games) root.children.push_back({path, Stem(path) + (percent ? Percent(h) : ""), h.GameName, {}});
}

// Paths of a recent list or the saved folder: "Name - Number (n%)"; a file gone or bad is passed over.
void AddPaths(SelectNode& root, const std::vector<std::string>& paths) {
  for (const std::string& path : paths) {
    const auto h = ReadGameHeader(path);
    if (h) root.children.push_back({path, h->GameName + " - " + h->GameNo.Text() + Percent(*h), h->GameName, {}});
  }
}

SelectNode FavNode(const FavGame& g) { return {g.path, g.name, g.record.GameName, {}}; }

const SelectNode* FindIn(const SelectNode& node, const std::string& key) {
  if (node.key == key) return &node;
  for (const SelectNode& child : node.children)
    if (const SelectNode* found = FindIn(child, key)) return found;
  return nullptr;
}

int CountOf(const SelectNode& node) {
  int n = 1;
  for (const SelectNode& child : node.children) n += CountOf(child);
  return n;
}

std::string With(const char* caption, const std::string& value) { return std::string(caption) + value; }

}  // namespace

const std::array<SelectCategory, 12>& SelectCategories() {
  static const std::array<SelectCategory, 12> categories{{{"Org", "Created Games"},
                                                          {"Std", "Standard Games"},
                                                          {"All", "All Games"},
                                                          {"Pend", "Pending List"},
                                                          {"Fav", "Favorites"},
                                                          {"Hot", "Hot Games"},
                                                          {"Inc", "Incomplete AutoSave"},
                                                          {"Fin", "Finished AutoSave"},
                                                          {"Save", "Saved Games"},
                                                          {"rSave", "Recently Saved"},
                                                          {"rOpen", "Recently Opened"},
                                                          {"rPlay", "Recently Played"}}};
  return categories;
}

int SelectTree::Count() const { return CountOf(root); }
const SelectNode* SelectTree::Find(const std::string& key) const { return FindIn(root, key); }

SelectTree FillSelectTree(const Program& app, const std::string& category) {
  SelectTree tree;
  std::string caption;
  for (const auto& c : SelectCategories())
    if (category == c.key) caption = c.caption;
  tree.root = {"m", caption, "", {}};
  tree.rootBold = category != "Save";
  SelectNode& root = tree.root;
  const cData& data = app.cData;
  if (category == "Org") AddGames(app, root, [&](const std::string& n) { return data.IsOriginal(n); });
  else if (category == "Std") AddGames(app, root, [&](const std::string& n) { return !data.IsOriginal(n); });
  else if (category == "All") AddGames(app, root, [](const std::string&) { return true; });
  else if (category == "Hot") AddGames(app, root, [&](const std::string& n) { return IsHot(app, n); });
  else if (category == "Pend") AddListed(root, ListPending(app), true);
  else if (category == "Inc") AddListed(root, ListAutoSaves(app, false), true);
  else if (category == "Fin") AddListed(root, ListAutoSaves(app, true), false);
  else if (category == "Save") AddPaths(root, GetSavedFiles(app));
  else if (category == "rSave") AddPaths(root, RecentMenuEntries(app, kRecentSaved));
  else if (category == "rOpen") AddPaths(root, RecentMenuEntries(app, kRecentOpened));
  else if (category == "rPlay") {
    for (const std::string& entry : PlayableEntries(app)) root.children.push_back({entry, entry, SplitPlayed(entry)->first, {}});
  } else if (category == "Fav") {
    root.key = app.cData.FavFolder(FolderUse::Read);
    root.text = "Favorites";
    const FavTree fav = ReadFavTree(app);
    for (const FavFolderNode& folder : fav.folders) {
      SelectNode node{folder.path, folder.name, "", {}};
      for (const FavGame& g : folder.games) node.children.push_back(FavNode(g));
      root.children.push_back(std::move(node));
    }
    for (const FavGame& g : fav.games) root.children.push_back(FavNode(g));
  }
  const std::string stored = app.cRegistry.RegGetStr(section::Select, category, "");
  const SelectNode* chosen = stored.empty() ? nullptr : tree.Find(stored);
  tree.selected = chosen && !chosen->tag.empty() ? stored : root.key;
  return tree;
}

SelectDetails DetailsOf(const Program& app, const std::string& category, const std::string& item,
                        const std::string& game) {
  SelectDetails d;
  cCustom rules = app.cCustom;  // a copy: the game on the table may need the header it holds
  if (Is(category, {"Inc", "Pend", "Fin", "rSave", "rOpen", "Save"})) {
    const auto h = ReadGameHeader(item);
    if (h) {
      d.det = {With("Game Name :", h->GameName), With("Game Number :", h->GameNo.Text()),
               With("Date Played :", h->FileDate), With("Total Moves :", std::to_string(h->Moves)),
               With("Score Achieved :", std::to_string(h->Score)), With("Time Taken : ", FormatSeconds(h->Time))};
      if (category != "Fin") d.det.push_back(With("Percentage Completed :", std::to_string(h->Percentage) + "%"));
      rules.LoadGameFile(*h);  // a saved file's short rules are its own
    }
  } else if (category == "Fav") {
    const auto rec = ReadFavFile(item);
    if (rec)
      d.det = {With("Game Name :", rec->GameName), With("Game Number :", rec->GameNo.Text()),
               With("Date Added :", rec->Date), With("Added By :", rec->Player)};
    rules.Init(game);
  } else {
    const auto played = category == "rPlay" ? SplitPlayed(item) : std::nullopt;
    d.det = {With("Game Name : ", game), With("Game Number : ", played ? played->second.Text() : "Random"),
             With("Game Type :", app.cData.IsOriginal(game) ? "Created" : "Standard"),
             With("No of Decks :", app.cData.GetDeck(game)), With("Hot Game :", IsHot(app, game) ? "Yes" : "No")};
    rules.Init(game);
  }
  d.sub = {With("Tableau Card Order : ", GetOrderName(rules.HOrder)),
           With("Space Filling Card : ", GetSpaceName(rules.HSpace)),
           With("No of Tableau Piles : ", std::to_string(rules.HPiles)),
           With("Ace-King Wrapping  : ", GetBoolName(rules.HAK)), With("No of Suits : ", GetSuitName(rules.Suits)),
           With("Multi Card Order : ", GetOrderName(rules.MOrder))};
  rules.Init(game);  // the preview is the game's, where the game is known
  d.preview = rules.Update_Pic();
  return d;
}

void StoreSelItem(Program& app, const std::string& category, const std::string& item) {
  app.cRegistry.RegSaveStr(section::Select, category, item);
}

bool PlaySelected(Program& app, const std::string& category, const std::string& item, const std::string& game) {
  if (game.empty()) return false;
  auto& gp = app.cGamePlay;
  if (Is(category, {"Inc", "Fin", "Save", "rSave", "rOpen"})) return gp.PlayFile(item, true);
  if (category == "Pend") return gp.PlayPendFile(item);
  if (category == "Fav") return gp.PlayFavFile(item);
  if (category == "rPlay") return gp.PlayString(item);
  return gp.StartGame(game, RandomGameNo(app), 0, 0, 0, 0);
}

}  // namespace qv
