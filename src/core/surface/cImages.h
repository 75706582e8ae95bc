#pragma once

#include <string>
#include <vector>

#include "surface/Picture.h"
#include "surface/Rgb.h"

namespace qv {

// The picture library as the table sees it: every picture is named by a token, and the
// desktop program paints the token. The catalogue (how many decks, in which groups) is
// the library's own and lives here, so the settings can mend a stored deck without a display.
class cImages {
 public:
  Picture CardFace(int n) const { return {Picture::Face, static_cast<int16_t>(n)}; }
  void EndFaces() {}
  Picture CardBack(int deckIndex) const { return {Picture::Back, static_cast<int16_t>(deckIndex)}; }
  Picture PileMarker(int n) const { return {Picture::Marker, static_cast<int16_t>(n)}; }
  void EndMarkers() {}
  // The parts of a game's preview: reserve (piles, cards), foundation (base, cards) and
  // tableau (piles, suits).
  Picture ReservePicture(int RPiles, int RCards) const { return Preview(Picture::ReservePreview, RPiles, RCards); }
  Picture GoalPicture(int GBase, int GCards) const { return Preview(Picture::GoalPreview, GBase, GCards); }
  Picture HomePicture(int HPiles, int Suits) const { return Preview(Picture::HomePreview, HPiles, Suits); }

  // The selection dialog's pictures. A preview part is made from two rule parameters:
  // 0 the reserve (piles, cards), 1 the foundations (base, cards), 2 the tableau (piles, suits).
  enum PreviewPart : int16_t { PreviewReserve, PreviewGoal, PreviewTableau };
  Picture PreviewPicture(PreviewPart part, int a, int b) const {
    return {Picture::Preview, part, static_cast<int16_t>(a), static_cast<int16_t>(b)};
  }
  enum PanelPart : int16_t { SelectMaxPanel, SelectMinPanel, BlankPanel, BlankSubPanel };
  Picture SelectMax() const { return {Picture::Panel, SelectMaxPanel}; }
  Picture SelectMin() const { return {Picture::Panel, SelectMinPanel}; }
  Picture BlankPicture() const { return {Picture::Panel, BlankPanel}; }
  Picture BlankSubPicture() const { return {Picture::Panel, BlankSubPanel}; }
  // The selection tree's icons.
  enum IconPart : int16_t { FolderIcon, GameIcon, GameSelectedIcon, BulletIcon };
  Picture TreeIcon(IconPart icon) const { return {Picture::Icon, icon}; }

  // Decks 1 to DeckCount, each in a group; deck 7 is the default.
  int DeckCount() const;
  int DeckGroup(int index) const;
  // The group names, with their count as text in element 0.
  std::vector<std::string> DeckGroups() const;

  // The backgrounds: textures 1 to TextureCount in groups, named colours 1 to ColorCount
  // (7 a felt green, the first table of a new player), built-in pictures 1 to ImageCount.
  int TextureCount() const;
  int TextureGroup(int index) const;
  std::vector<std::string> TextureGroups() const;  // the count as text in element 0
  int ColorCount() const;
  std::string ColorName(int index) const;
  Rgb ColorValue(int index) const;
  int ImageCount() const;
  std::string ImageName(int index) const;

 private:
  static Picture Preview(Picture::Kind kind, int a, int b) {
    return {kind, static_cast<int16_t>(a), static_cast<int16_t>(b)};
  }
};

}  // namespace qv
