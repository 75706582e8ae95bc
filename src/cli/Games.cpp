#include "Games.h"

#include <iostream>

#include "CliSurface.h"
#include "Script.h"
#include "StateJson.h"
#include "created/GamFile.h"
#include "created/StudioGames.h"
#include "session/Program.h"

namespace qv {

namespace {

// A whole number within lo..hi, as the editor's lists offer them.
bool Within(const std::string& text, int lo, int hi, int16_t& out) {
  if (text.empty() || text.size() > 2 || text.find_first_not_of("0123456789") != std::string::npos) return false;
  const int v = std::stoi(text);
  out = static_cast<int16_t>(v);
  return v >= lo && v <= hi;
}

int Usage(const std::string& message) {
  std::cerr << "quorvale-cli: " << message << "\n";
  return kUsageError;
}

}  // namespace

int PrintGames(Program& app) {
  const cData& d = app.cData;
  std::cout << "[";
  for (int id = 1; id <= d.TotalGames(); ++id) {
    const std::string& name = d.GetGName(id);
    cCustom c = app.cCustom;
    if (!c.Init(name)) continue;  // a file gone since the list was read
    const auto files = GamFilesOf(d.GamesFolder(FolderUse::Read), name);
    std::cout << (id > 1 ? "," : "") << "{\"id\":" << id << ",\"name\":" << JsonText(name)
              << ",\"created\":" << (d.IsOriginal(name) ? "true" : "false") << ",\"deck\":" << JsonText(d.GetDeck(name))
              << ",\"hpiles\":" << c.HPiles << ",\"horder\":" << c.HOrder << ",\"hspace\":" << c.HSpace
              << ",\"hak\":" << c.HAK << ",\"hmulti\":" << c.HMulti << ",\"suits\":" << c.Suits
              << ",\"morder\":" << c.MOrder << ",\"file\":"
              << (d.IsOriginal(name) && !files.empty() ? JsonText(files[0]) : "null") << "}";
  }
  std::cout << "]\n";
  return kOk;
}

int PrintRules(Program& app, const std::string& name) {
  if (!app.cCustom.Init(name)) return Usage("the game \"" + name + "\" is not in the list of games");
  for (const RulesLine& line : RulesPage(app.cCustom)) {
    const bool gap = !line.value.empty() && !line.text.ends_with(' ');
    std::cout << line.text << (gap ? " " : "") << line.value << "\n";
  }
  return kOk;
}

int CreateGame(Program& app, CliDialogs& dialogs, const std::vector<std::string>& args) {
  const bool overwrite = args.size() == 9;
  if (overwrite && args[8] != "--overwrite") return Usage("the last argument of create-game may only be --overwrite");
  cCustom& c = app.cCustom;
  c.Init("Spider");  // every new game starts from Spider's fields
  if (!Within(args[2], 6, 10, c.HPiles) || !Within(args[3], 4, 5, c.HOrder) || !Within(args[4], 0, 13, c.HSpace) ||
      !Within(args[5], 0, 1, c.HAK) || !Within(args[6], 0, 2, c.Suits) || !Within(args[7], 0, 4, c.MOrder))
    return Usage("create-game takes PILES 6-10, ORDER 4-5, SPACE 0-13, AK 0-1, SUITS 0-2, MORDER 0-4");
  if (c.Suits == 0 && c.MOrder != 0) {
    app.MsgBox(app.cData.ProdNameX() + " will change Multi Card order to Down Same Suit since it is a Single Suit Game ",
               MsgStyle::Information);
    c.MOrder = 0;
  }
  dialogs.questionAnswer = overwrite ? Answer::Yes : Answer::No;
  const bool saved = c.SaveStudioGame(args[1], true, false);
  dialogs.Flush();
  return saved ? kOk : kFileError;
}

int DeleteGame(Program& app, CliDialogs& dialogs, const std::string& name) {
  if (!app.cData.IsOriginal(name)) return Usage("\"" + name + "\" is not a created game");
  dialogs.questionAnswer = Answer::Yes;
  const bool deleted = DeleteStudioGame(app, name);
  dialogs.Flush();
  return deleted ? kOk : kFileError;
}

}  // namespace qv
