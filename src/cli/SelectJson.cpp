#include "SelectJson.h"

#include "StateJson.h"
#include "lists/Favorites.h"
#include "lists/mSelect.h"
#include "session/Program.h"

namespace qv {

namespace {

std::string Texts(const std::vector<std::string>& items) {
  std::string out = "[";
  for (size_t i = 0; i < items.size(); ++i) out += (i ? "," : "") + JsonText(items[i]);
  return out + "]";
}

std::string GameJson(const FavGame& g) {
  return "{\"name\":" + JsonText(g.name) + ",\"path\":" + JsonText(g.path) + ",\"game\":" + JsonText(g.record.GameName) +
         ",\"number\":" + JsonText(g.record.GameNo.Text()) + ",\"typed\":" + (g.record.GameNo.IsTyped() ? "true" : "false") +
         ",\"player\":" + JsonText(g.record.Player) + ",\"date\":" + JsonText(g.record.Date) + "}";
}

std::string Games(const std::vector<FavGame>& games) {
  std::string out = "[";
  for (size_t i = 0; i < games.size(); ++i) out += (i ? "," : "") + GameJson(games[i]);
  return out + "]";
}

std::string NodeJson(const SelectNode& n) {
  std::string out = "{\"key\":" + JsonText(n.key) + ",\"text\":" + JsonText(n.text) + ",\"tag\":" + JsonText(n.tag);
  if (!n.children.empty()) {
    out += ",\"children\":[";
    for (size_t i = 0; i < n.children.size(); ++i) out += (i ? "," : "") + NodeJson(n.children[i]);
    out += "]";
  }
  return out + "}";
}

}  // namespace

std::string FavoritesJson(const Program& app) {
  const FavTree tree = ReadFavTree(app);
  std::string out = "{\"folders\":[";
  for (size_t i = 0; i < tree.folders.size(); ++i) {
    const auto& f = tree.folders[i];
    out += (i ? "," : "") + std::string("{\"name\":") + JsonText(f.name) + ",\"path\":" + JsonText(f.path) +
           ",\"games\":" + Games(f.games) + "}";
  }
  return out + "],\"games\":" + Games(tree.games) + "}";
}

std::string SelectJson(Program& app, const std::string& category) {
  const SelectTree tree = FillSelectTree(app, category);
  return "{\"root\":" + NodeJson(tree.root) + ",\"bold\":" + (tree.rootBold ? "true" : "false") +
         ",\"selected\":" + JsonText(tree.selected) + "}";
}

std::string SelectItemJson(Program& app, const std::string& category, const std::string& item) {
  const SelectTree tree = FillSelectTree(app, category);
  const SelectNode* node = tree.Find(item);
  if (!node || node->tag.empty()) return {};
  const SelectDetails d = DetailsOf(app, category, item, node->tag);
  return "{\"game\":" + JsonText(node->tag) + ",\"details\":" + Texts(d.det) + ",\"rules\":" + Texts(d.sub) + "}";
}

}  // namespace qv
