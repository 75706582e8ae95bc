// quorvale-cli: the game engine without a window, for scripts, tests and players.
#include <algorithm>
#include <fstream>
#include <iostream>
#include <string>
#include <vector>

#include "CliSurface.h"
#include "Games.h"
#include "LooksJson.h"
#include "Script.h"
#include "ScoreCommands.h"
#include "SelectJson.h"
#include "Solve.h"
#include "StateJson.h"
#include "lists/AutoSave.h"
#include "lists/Pending.h"
#include "lists/Recent.h"
#include "scores/Finish.h"
#include "lists/mSelect.h"
#include "session/HistoryReport.h"
#include "session/Program.h"
#include "session/StartUp.h"
#include "settings/IniSettingsStore.h"
#include "settings/OverlaySettingsStore.h"
#include "surface/RecordingSprites.h"
#include "surface/RecordingWindow.h"

namespace {

constexpr const char* kHelp = R"(Usage: quorvale-cli COMMAND [ARGUMENTS]

Commands:
  deal GAME NUMBER   Print the table right after the opening deal of GAME with
                     game number NUMBER (any positive decimal number), as JSON.
  replay FILE        Load a saved game (.vq0 or .vq1) as the program does and print
                     the state as JSON; a finished game is first replayed to its end.
  history FILE       Print the history report of a saved game loaded as replay does,
                     for the current player, dated now.
  moves FILE         The Moves Manager's rows of a saved game as a JSON array: moves,
                     source, destination, cards, and inner (inside a step).
  run [SCRIPT]       Play a session script from SCRIPT or standard input.
  autosave-list      The auto-saved games as JSON: {"incomplete": [...], "finished": [...]},
                     full paths in the folder's order, files that read only.
  pending-list       The pending games as a JSON array of full paths, as the menu lists them.
  recent N           A recent list as the File menu shows it, a JSON array in slot order:
                     0 played, 1 saved, 2 opened. A saved game that no longer reads, or
                     a game no longer in the game list, is left out.
  scores [--player P] Every game of the score files (or of one player's) as JSON, players
                     in slot order, each player's oldest first; lines that do not read
                     are named on standard error and left out.
  top [--game G] [--player P] [--won] [--by score|time|moves]
                     The top 20 as the High Score window lists them (by time or moves:
                     won games of everyone, lowest first).
  gamestat [--now DATE]
                     Game Statistics as JSON: the summary, games, players and periods.
  log [--player P] [--game G] [--date t|3d|7d|30d|3m|5m] [--now DATE]
                     Log Statistics as JSON, filtered as the window filters.
  players [add N | rename OLD NEW | delete N | select N]
                     The players and the current one; a change the Players window
                     refuses is refused with its message and exit status 1.
  export [FILE]      The statistics report to FILE, or to standard output.
  favorites          The favourites as JSON: folders with their games, then the root's
                     games, each with its file and record (game, number, player, date).
  select KEY [ITEM]  A category of the game selection as it fills (KEY: Org, Std, All,
                     Pend, Fav, Hot, Inc, Fin, Save, rSave, rOpen, rPlay), as JSON; with
                     ITEM (a node's key), that entry's details and rules in short.
  games              Every game as a JSON array in id order: id, name, created, deck,
                     hpiles, horder, hspace, hak, hmulti, suits, morder, and the file
                     of a created game (null for a standard one).
  rules GAME         The rules page of GAME, one text line each, in reading order.
  create-game NAME PILES ORDER SPACE AK SUITS MORDER [--overwrite]
                     Save a created game as the Game Editor does: PILES 6-10, ORDER 4
                     (down regardless of suit) or 5 (any card), SPACE 0-12 (Ace to King)
                     or 13 (any card), AK 0 or 1 (Ace-King wrapping), SUITS 0 one, 1 two,
                     2 four, MORDER 0-4 (same suit, alternate colour, same colour, other
                     suits, regardless of suit). An existing game is kept unless
                     --overwrite is given.
  delete-game NAME   Delete a created game (its question answered Yes). Its scores,
                     saved games and favourites stay.
  background         The table's background after the settings' repairs, as JSON: kind
                     (0 texture, 1 colour, 2 picture, 3 scheme, 4 custom picture,
                     5 image folder), index or path, a gradient's top and bottom
                     colours, fade, tile and timer.
  schemes            The colour schemes that read, by name, as a JSON array.
  sounds             The thirty sound events as a JSON array: key, group, label, the
                     file it plays and whether that file exists.
  solve GAME FROM TO [--budget MS] [--memory MB] [--player [--samples N]] [--solution]
                     Is each deal from FROM to TO winnable? One JSON line per deal:
                     number, verdict (winnable, lost or unknown), moves, positions, ms,
                     peak_mb and limit (what ran out for "unknown"). --budget is the time
                     per deal (10000 ms), --memory its memory (512 MB). --solution adds
                     script: the winning moves as `run` lines. --player samples N (20)
                     orders of the cards not yet seen: chance, low and high (95%).
  solve FILE [...]   The same for the position of a saved game.
  --help             Show this text.

DATE is a date as the score files hold it, such as 11/17/2026 (default: today).
Score files: "$XDG_DATA_HOME/Velmarin Works/Quorvale 6.0<player>.sre".

deal, replay, history, moves, games, rules, solve, the lists, scores, top, gamestat,
log, background, schemes and sounds only look: they write no setting and no file. deal and
run take created games by name as well.

A script has one command a line; blank lines and lines starting with # are skipped,
and an argument with blanks goes in double quotes. It starts with no game on the
table, reads and writes your settings as the program does, and runs:
  new GAME NUMBER          deal GAME with a game number of 1 to 15 digits
  number GAME DIGITS       deal GAME with a number as typed (digits, at most one .)
  drag CELL PILE POS TO    drag the card at a place onto tableau pile TO and let go
  dragxy CELL PILE POS X Y drag it and let go with its left and top at X, Y twips
  stock                    press the Stock (deals a row)
  dblclick CELL PILE POS   double-click a card (sends it to a foundation if one takes it)
  undo | redo | undoall | redoall | moveto N
  tick N                   N seconds of the game clock
  pause | restart | close
  save PATH | open PATH    (a finished game is replayed to its end at once)
  addfav [PATH]            add the deal on the table to the favourites (by default
                           "<game> - <number>" in the favourites folder)
  playfav PATH             deal a favourite's game and number
  history [PATH]           print the game's history report, or write it to PATH
  show                     print the state as JSON
  sounds                   print the sound events since the last "sounds", as JSON
  title                    print the window title
  player NAME              play as NAME from now on (a new name is added)
  session                  print this run's ended games and their totals as JSON
  exit                     stop as the program stops (may keep the unfinished game)
Places: CELL 0 tableau, 1 stock, 3 foundation; PILE and POS count from 0.
A move the rules refuse, or a command that would be greyed, does nothing.
A won game is recorded as the window records it, and "Congrats" closes as by "Close"
(keeping the game in the saved-games folder when "Save this Game" is on).

Exit status: 0 done, 1 a file that cannot be read or written (or a created game
refused), 2 a usage error.
Settings: $XDG_CONFIG_HOME/Quorvale/6.0/quorvale.ini. Files: $XDG_DATA_HOME and the
XDG documents folder.
)";

struct Headless {
  qv::RecordingSprites sprites;
  qv::RecordingWindow window;
  qv::CliDialogs dialogs;
  qv::SystemClock clock;
  qv::Surface Surface() { return {sprites, window, dialogs, clock}; }
};

int Fail(int status, const std::string& message) {
  std::cerr << "quorvale-cli: " << message << "\n";
  return status;
}

int Look(const std::vector<std::string>& args) {
  qv::IniSettingsStore file(qv::IniSettingsStore::DefaultPath());
  qv::OverlaySettingsStore settings(file);
  Headless h;
  qv::Program app(h.Surface(), settings, qv::PlatformFolders::FromEnvironment());
  if (args[0] == "deal") {
    if (!qv::GameNo::IsDigitText(args[2]) || qv::GameNo::Number(args[2]).Value() <= 0)
      return Fail(qv::kUsageError, "the game number must be a positive decimal number");
    if (!app.cGamePlay.PlayNumber(args[1], qv::GameNo::Number(args[2])))
      return Fail(qv::kUsageError, h.dialogs.messages.empty() ? "the game cannot be dealt" : h.dialogs.messages.back());
  } else {
    if (!app.cGamePlay.PlayFile(args[1], true))
      return Fail(qv::kFileError, h.dialogs.messages.empty() ? "the file cannot be read" : h.dialogs.messages.back());
    qv::ReplayToEnd(app);
  }
  if (args[0] == "history") {
    std::cout << qv::HistoryReport(qv::HistoryHeadOf(app), app.cEngine);
    return qv::kOk;
  }
  std::cout << (args[0] == "moves" ? qv::MovesJson(app) : qv::StateJson(app)) << "\n";
  return qv::kOk;
}

std::string JsonArray(const std::vector<std::string>& items) {
  std::string out = "[";
  for (size_t i = 0; i < items.size(); ++i) out += (i ? "," : "") + qv::JsonText(items[i]);
  return out + "]";
}

int List(const std::vector<std::string>& args) {
  qv::IniSettingsStore file(qv::IniSettingsStore::DefaultPath());
  qv::OverlaySettingsStore settings(file);
  Headless h;
  qv::Program app(h.Surface(), settings, qv::PlatformFolders::FromEnvironment());
  if (args[0] == "autosave-list") {
    std::cout << "{\"incomplete\":" << JsonArray(qv::GetAutoSaveFiles(app, false))
              << ",\"finished\":" << JsonArray(qv::GetAutoSaveFiles(app, true)) << "}\n";
  } else if (args[0] == "favorites") {
    std::cout << qv::FavoritesJson(app) << "\n";
  } else if (args[0] == "select") {
    const auto& keys = qv::SelectCategories();
    if (std::none_of(keys.begin(), keys.end(), [&](const auto& c) { return args[1] == c.key; }))
      return Fail(qv::kUsageError, "no category \"" + args[1] + "\"; see quorvale-cli --help");
    const std::string json = args.size() == 3 ? qv::SelectItemJson(app, args[1], args[2]) : qv::SelectJson(app, args[1]);
    if (json.empty()) return Fail(qv::kUsageError, "no game \"" + args[2] + "\" in " + args[1]);
    std::cout << json << "\n";
  } else if (args[0] == "pending-list") {
    std::cout << JsonArray(qv::GetPendingFiles(app)) << "\n";
  } else if (args[0] == "background") {
    std::cout << qv::BackgroundJson(app) << "\n";
  } else if (args[0] == "schemes") {
    std::cout << qv::SchemesJson(app) << "\n";
  } else if (args[0] == "sounds") {
    std::cout << qv::SoundsJson(app) << "\n";
  } else {
    if (args[1] != "0" && args[1] != "1" && args[1] != "2") return Fail(qv::kUsageError, "recent takes 0, 1 or 2");
    std::cout << JsonArray(qv::RecentMenuEntries(app, std::stoi(args[1]))) << "\n";
  }
  return qv::kOk;
}

int Scores(const std::vector<std::string>& args) {
  qv::IniSettingsStore file(qv::IniSettingsStore::DefaultPath());
  // Only the players' commands change settings; the others only look.
  qv::OverlaySettingsStore overlay(file);
  qv::ISettingsStore& settings = args[0] == "players" ? static_cast<qv::ISettingsStore&>(file) : overlay;
  Headless h;
  qv::Program app(h.Surface(), settings, qv::PlatformFolders::FromEnvironment());
  const int status = qv::ScoreCommand(app, args);
  h.dialogs.Flush();
  return status;
}

int CreatedGames(const std::vector<std::string>& args) {
  qv::IniSettingsStore file(qv::IniSettingsStore::DefaultPath());
  qv::OverlaySettingsStore overlay(file);
  const bool looks = args[0] == "games" || args[0] == "rules";
  Headless h;
  qv::Program app(h.Surface(), looks ? static_cast<qv::ISettingsStore&>(overlay) : file,
                  qv::PlatformFolders::FromEnvironment());
  if (args[0] == "games") return qv::PrintGames(app);
  if (args[0] == "rules") return qv::PrintRules(app, args[1]);
  if (args[0] == "create-game") return qv::CreateGame(app, h.dialogs, args);
  return qv::DeleteGame(app, h.dialogs, args[1]);
}

int RunScript(const std::vector<std::string>& args) {
  std::ifstream file;
  if (args.size() == 2) {
    file.open(args[1], std::ios::binary);
    if (!file) return Fail(qv::kFileError, "the script \"" + args[1] + "\" cannot be read");
  }
  qv::IniSettingsStore settings(qv::IniSettingsStore::DefaultPath());
  Headless h;
  qv::Program app(h.Surface(), settings, qv::PlatformFolders::FromEnvironment());
  qv::StartUp(app);
  h.window.onFinish = [&app] { qv::CloseFinish(app, qv::FinishSavePath(app)); };
  qv::ScriptRunner runner(app, h.dialogs, std::cout);
  return runner.Run(args.size() == 2 ? static_cast<std::istream&>(file) : std::cin);
}

}  // namespace

int main(int argc, char** argv) {
  const std::vector<std::string> args(argv + 1, argv + argc);
  if (args.empty()) return Fail(qv::kUsageError, "a command is missing; see quorvale-cli --help");
  if (args[0] == "--help" || args[0] == "-h") {
    std::cout << kHelp;
    return qv::kOk;
  }
  if (args[0] == "deal" && args.size() == 3) return Look(args);
  if (args[0] == "replay" && args.size() == 2) return Look(args);
  if ((args[0] == "history" || args[0] == "moves") && args.size() == 2) return Look(args);
  if (args[0] == "run" && args.size() <= 2) return RunScript(args);
  if ((args[0] == "autosave-list" || args[0] == "pending-list") && args.size() == 1) return List(args);
  if (args[0] == "recent" && args.size() == 2) return List(args);
  if (qv::IsScoreCommand(args[0])) return Scores(args);
  if (args[0] == "favorites" && args.size() == 1) return List(args);
  if (args[0] == "select" && (args.size() == 2 || args.size() == 3)) return List(args);
  if ((args[0] == "games" && args.size() == 1) || (args[0] == "rules" && args.size() == 2)) return CreatedGames(args);
  if ((args[0] == "create-game" && (args.size() == 8 || args.size() == 9)) ||
      (args[0] == "delete-game" && args.size() == 2))
    return CreatedGames(args);
  if ((args[0] == "background" || args[0] == "schemes" || args[0] == "sounds") && args.size() == 1) return List(args);
  if (args[0] == "solve") return qv::SolveCommand(args);
  return Fail(qv::kUsageError, "unknown command or wrong arguments; see quorvale-cli --help");
}
