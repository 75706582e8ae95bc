// quorvale-cli: the game engine without a window, for scripts, tests and players.
#include <fstream>
#include <iostream>
#include <string>
#include <vector>

#include "CliSurface.h"
#include "Script.h"
#include "Solve.h"
#include "StateJson.h"
#include "lists/AutoSave.h"
#include "lists/Pending.h"
#include "lists/Recent.h"
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
  run [SCRIPT]       Play a session script from SCRIPT or standard input.
  autosave-list      The auto-saved games as JSON: {"incomplete": [...], "finished": [...]},
                     full paths in the folder's order, files that read only.
  pending-list       The pending games as a JSON array of full paths, as the menu lists them.
  recent N           A recent list as the File menu shows it, a JSON array in slot order:
                     0 played, 1 saved, 2 opened. A saved game that no longer reads, or
                     a game no longer in the game list, is left out.
  solve GAME FROM TO [--budget MS] [--memory MB] [--player [--samples N]] [--solution]
                     Is each deal from FROM to TO winnable? One JSON line per deal:
                     number, verdict (winnable, lost or unknown), moves, positions, ms,
                     peak_mb and limit (what ran out for "unknown"). --budget is the time
                     per deal (10000 ms), --memory its memory (512 MB). --solution adds
                     script: the winning moves as `run` lines. --player samples N (20)
                     orders of the cards not yet seen: chance, low and high (95%).
  solve FILE [...]   The same for the position of a saved game.
  --help             Show this text.

deal, replay, solve and the lists only look: they write no setting and no file.

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
  show                     print the state as JSON
  title                    print the window title
  exit                     stop as the program stops (may keep the unfinished game)
Places: CELL 0 tableau, 1 stock, 3 foundation; PILE and POS count from 0.
A move the rules refuse, or a command that would be greyed, does nothing.

Exit status: 0 done, 1 a file that cannot be read or written, 2 a usage error.
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
  std::cout << qv::StateJson(app) << "\n";
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
  } else if (args[0] == "pending-list") {
    std::cout << JsonArray(qv::GetPendingFiles(app)) << "\n";
  } else {
    if (args[1] != "0" && args[1] != "1" && args[1] != "2") return Fail(qv::kUsageError, "recent takes 0, 1 or 2");
    std::cout << JsonArray(qv::RecentMenuEntries(app, std::stoi(args[1]))) << "\n";
  }
  return qv::kOk;
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
  if (args[0] == "run" && args.size() <= 2) return RunScript(args);
  if ((args[0] == "autosave-list" || args[0] == "pending-list") && args.size() == 1) return List(args);
  if (args[0] == "recent" && args.size() == 2) return List(args);
  if (args[0] == "solve") return qv::SolveCommand(args);
  return Fail(qv::kUsageError, "unknown command or wrong arguments; see quorvale-cli --help");
}
