#pragma once

#include <array>
#include <cstdint>
#include <string>
#include <vector>

#include "surface/Picture.h"

namespace qv {

class IPictureBox;
class Program;
struct GameHeader;

// The rule parameters of the game last asked for (which need not be the game on the table).
class cCustom {
 public:
  explicit cCustom(Program& app) : app_(&app) {}

  // Loads the parameters for a game name; false when the game is neither created nor standard,
  // and then everything held stays as it was.
  bool Init(const std::string& gName);
  bool LoadStudioFile(const std::string& gName);
  void Home(int16_t cHPiles, int32_t cHOrder, int16_t cHSpace, int16_t cHAK, int16_t cHMulti, int32_t cSuits,
            int32_t cMOrder);
  void Goal(int32_t cGOrder, int16_t cGBase, int16_t cGCards);
  void Res(int16_t cRPiles, int16_t cRCards);
  // Takes the name and the twelve rule fields of a saved game's header.
  void LoadGameFile(const GameHeader& header);
  // Names of the created games; element 0 is their count as text.
  std::vector<std::string> GetStudioGames() const;
  // Writes the parameters held as the game GameName; false, after telling the user why,
  // for a name that cannot be a file, an overwrite refused or a write that failed.
  bool SaveStudioGame(const std::string& cGameName, bool mAdd, bool mGameEdit);
  // The small picture of the parameters: reserve, foundation and tableau parts.
  void Update_Pic(IPictureBox& pic) const;

  // The small preview of the parameters held: three pictures and where they go, in units
  // of a 250 by 72 box (the first row is 125 by 36 each).
  struct PlacedPicture {
    Picture picture;
    int x, y;
  };
  std::array<PlacedPicture, 3> Update_Pic() const;

  // True while the rule fields held came from a saved game's header for this very name,
  // which is what lets a game whose name is no longer known be dealt.
  bool HoldsHeaderFor(const std::string& gName) const { return !headerName_.empty() && headerName_ == gName; }

  std::string GameName;
  int16_t GOrder = 0, GBase = 0, GCards = 0;
  int16_t HOrder = 0, HSpace = 0, HPiles = 0, HAK = 0, HMulti = 0;
  int16_t RPiles = 0, RCards = 0;
  int16_t MOrder = 0, Suits = 0;

 private:
  friend bool SetStdGame(cCustom& custom, const std::string& name);
  Program* app_;
  std::string headerName_;
};

}  // namespace qv
