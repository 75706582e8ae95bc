#include "created/StudioGames.h"

#include "created/GamFile.h"
#include "engine/mStudio.h"
#include "session/Program.h"

namespace qv {

namespace {

bool Running(const Program& app, const std::string& name) {
  return app.cGamePlay.Game_Running() && app.cGamePlay.GameName() == name;
}

}  // namespace

bool MayEditGame(Program& app, const std::string& name) {
  if (!Running(app, name)) return true;
  app.MsgBox("You cannot edit the current playing game. To edit this game please close this game.",
             MsgStyle::Information);
  return false;
}

bool MayDeleteGame(Program& app, const std::string& name) {
  if (!Running(app, name)) return true;
  app.MsgBox("You cannot delete the current playing game. To delete this game please close this game.",
             MsgStyle::Information);
  return false;
}

bool DeleteStudioGame(Program& app, const std::string& name) {
  if (!MayDeleteGame(app, name)) return false;
  if (app.MsgBox("Are you sure you want to delete game : " + name + " ?", MsgStyle::YesNoStop) != Answer::Yes)
    return false;
  // A file already gone is fine: the lists are rebuilt all the same.
  for (const std::string& file : GamFilesOf(app.cData.GamesFolder(FolderUse::Read), name)) app.cFileSys.Delete(file);
  app.cData.Refresh_NewGames();
  app.surface.window.RefreshMenus();
  return true;
}

std::vector<std::pair<int, std::string>> GameComboItems(GameCombo list) {
  std::vector<std::pair<int, std::string>> items;
  const auto add = [&](int from, int to, std::string (*name)(int)) {
    for (int tag = from; tag <= to; ++tag) items.emplace_back(tag, name ? name(tag) : std::to_string(tag));
  };
  switch (list) {
    case GameCombo::Piles: add(6, 10, nullptr); break;
    case GameCombo::Order: add(4, 5, GetOrderName); break;
    case GameCombo::Space: add(0, 13, GetSpaceName); break;
    case GameCombo::MultiOrder: add(0, 4, GetOrderName); break;
    case GameCombo::Suits: add(0, 2, GetSuitName); break;
  }
  return items;
}

std::vector<RulesLine> RulesPage(const cCustom& c) {
  const std::string multi = GetOrderName(c.MOrder);
  return {
      {c.GameName, ""},
      {"2 Decks (104 cards)", ""},
      {"Object : ", "To build 8 sets of 13 cards in the tableau in a sequence. "},
      {"Layout : ", ""},
      {"Foundation", "(8 Piles)"},
      {"No direct building on the foundations.", ""},
      {"Tableau", "(" + std::to_string(c.HPiles) + " Piles )"},
      {"Build Tableau", GetOrderName(c.HOrder)},
      {"A group of cards can be moved to another tableau column only if they are in sequence", multi},
      {"Set of cards will be moved to foundation automatically if 13 cards are built in tableau in sequence ", multi},
      {"Spaces in tableau may be filled with ", GetSpaceName(c.HSpace)},
      {"Stock ", ""},
      {"Click once on the stock to deal a row of cards to the tableau columns. No Redeal. ", ""},
  };
}

}  // namespace qv
