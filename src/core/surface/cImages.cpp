#include "surface/cImages.h"

#include <array>

namespace qv {

namespace {
// Twelve decks in three groups of four: the painter draws each from its number.
constexpr std::array<const char*, 3> kDeckGroups{"Classic", "Patterns", "Landscapes"};
constexpr int kDecksPerGroup = 4;
}  // namespace

int cImages::DeckCount() const { return static_cast<int>(kDeckGroups.size()) * kDecksPerGroup; }

int cImages::DeckGroup(int index) const {
  if (index < 1 || index > DeckCount()) return 0;
  return (index - 1) / kDecksPerGroup + 1;
}

std::vector<std::string> cImages::DeckGroups() const {
  std::vector<std::string> groups{std::to_string(kDeckGroups.size())};
  groups.insert(groups.end(), kDeckGroups.begin(), kDeckGroups.end());
  return groups;
}

}  // namespace qv
