#pragma once

#include <array>
#include <string>
#include <vector>

#include "engine/cCustom.h"

namespace qv {

class Program;

// The selection dialog's twelve categories, in order: key and caption.
struct SelectCategory {
  const char* key;
  const char* caption;
};
const std::array<SelectCategory, 12>& SelectCategories();

// A node of the selection tree. Game nodes carry the game's name in `tag`; the root and
// folder nodes carry none.
struct SelectNode {
  std::string key, text, tag;
  std::vector<SelectNode> children;
};
struct SelectTree {
  SelectNode root;
  bool rootBold = true;
  // The node that comes back chosen: the category's last choice when it is still there,
  // else the root.
  std::string selected;
  int Count() const;
  const SelectNode* Find(const std::string& key) const;
};
// The tree of a category as its source gives it, headers read afresh; entries that do not
// read or whose game does not exist are left out.
SelectTree FillSelectTree(const Program& app, const std::string& category);

// What the right-hand panel shows for a chosen game node: the detail rows, the rules in
// short, and the preview. Read on a copy of the rule parameters: the table's stay as they are.
struct SelectDetails {
  std::vector<std::string> det, sub;
  std::array<cCustom::PlacedPicture, 3> preview{};
};
SelectDetails DetailsOf(const Program& app, const std::string& category, const std::string& item,
                        const std::string& game);
// Remembers a category's chosen node for the next opening.
void StoreSelItem(Program& app, const std::string& category, const std::string& item);

// Starts the chosen entry as its category says; false when nothing started.
bool PlaySelected(Program& app, const std::string& category, const std::string& item, const std::string& game);

}  // namespace qv
