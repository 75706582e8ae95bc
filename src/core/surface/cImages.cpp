#include "surface/cImages.h"

#include <array>

namespace qv {

namespace {
// Twelve decks in three groups of four: the painter draws each from its number.
constexpr std::array<const char*, 3> kDeckGroups{"Classic", "Patterns", "Landscapes"};
constexpr int kDecksPerGroup = 4;

// Twelve textures in four groups of three, painted by the desktop from their number.
constexpr std::array<const char*, 4> kTextureGroups{"Felt", "Wood", "Stone", "Linen"};
constexpr int kTexturesPerGroup = 3;

// Deep, quiet colours: white cards and black suits stay legible on each, plain or fading.
struct NamedColor {
  const char* name;
  Rgb value;
};
constexpr std::array<NamedColor, 16> kColors{{
    {"Midnight Blue", {25, 35, 80}},  {"Ocean", {0, 70, 110}},      {"Teal", {0, 95, 95}},
    {"Jade", {20, 110, 80}},          {"Moss", {70, 95, 40}},       {"Olive", {95, 95, 35}},
    {"Felt Green", {20, 105, 45}},    {"Pine", {15, 70, 45}},       {"Burgundy", {110, 20, 40}},
    {"Brick", {140, 55, 35}},         {"Plum", {85, 35, 95}},       {"Slate", {70, 80, 95}},
    {"Charcoal", {50, 50, 55}},       {"Chocolate", {90, 55, 30}},  {"Indigo", {50, 40, 120}},
    {"Steel Blue", {50, 95, 140}},
}};

constexpr std::array<const char*, 6> kImages{"Night Sky",    "Rolling Hills", "Sea Waves",
                                             "Autumn Woods", "Desert Dunes",  "Northern Lights"};
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

int cImages::TextureCount() const { return static_cast<int>(kTextureGroups.size()) * kTexturesPerGroup; }

int cImages::TextureGroup(int index) const {
  if (index < 1 || index > TextureCount()) return 0;
  return (index - 1) / kTexturesPerGroup + 1;
}

std::vector<std::string> cImages::TextureGroups() const {
  std::vector<std::string> groups{std::to_string(kTextureGroups.size())};
  groups.insert(groups.end(), kTextureGroups.begin(), kTextureGroups.end());
  return groups;
}

int cImages::ColorCount() const { return static_cast<int>(kColors.size()); }
std::string cImages::ColorName(int index) const { return kColors.at(index - 1).name; }
Rgb cImages::ColorValue(int index) const { return kColors.at(index - 1).value; }

int cImages::ImageCount() const { return static_cast<int>(kImages.size()); }
std::string cImages::ImageName(int index) const { return kImages.at(index - 1); }

}  // namespace qv
