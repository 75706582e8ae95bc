#include "Script.h"

#include <charconv>
#include <filesystem>
#include <istream>
#include <map>
#include <ostream>

#include "CliSurface.h"
#include "ScoreCommands.h"
#include "Solve.h"
#include "LooksJson.h"
#include "StateJson.h"
#include "engine/Pointer.h"
#include "lists/Favorites.h"
#include "lists/Recent.h"
#include "scores/PlayerEdit.h"
#include "scores/Players.h"
#include "session/Commands.h"
#include "session/HistoryReport.h"
#include "session/Program.h"
#include "session/StartUp.h"
#include "solver/Hint.h"

namespace qv {

namespace {

bool ToInt(const std::string& s, int& out) {
  const char* last = s.data() + s.size();
  auto [p, ec] = std::from_chars(s.data(), last, out);
  return ec == std::errc() && p == last;
}

CommandError Usage(const std::string& m) { return {kUsageError, m}; }

// A whole number of 1 to 15 digits, not 0: what a drawn game number can be.
bool IsRandomStyleNumber(const std::string& s) {
  if (s.empty() || s.size() > 15 || s.find_first_not_of("0123456789") != std::string::npos) return false;
  return s.find_first_not_of('0') != std::string::npos;
}

// The game's history report, printed or written to PATH; greyed, it does nothing.
CommandError History(Program& app, std::ostream& out, const std::vector<std::string>& w) {
  if (w.size() > 2) return Usage("history takes at most a path");
  if (!CommandEnabled(app, "History")) return {};
  if (w.size() == 1) {
    out << HistoryReport(HistoryHeadOf(app), app.cEngine);
    return {};
  }
  std::string error;
  if (!ExportHistory(app, w[1], &error)) return {kFileError, "the history could not be written to \"" + w[1] + "\": " + error};
  return {};
}

}  // namespace

std::vector<std::string> SplitWords(const std::string& line) {
  std::vector<std::string> words;
  std::string word;
  bool quoted = false, inWord = false;
  for (char c : line) {
    if (c == '"') {
      quoted = !quoted;
      inWord = true;
    } else if ((c == ' ' || c == '\t' || c == '\r') && !quoted) {
      if (inWord) words.push_back(word);
      word.clear();
      inWord = false;
    } else {
      word += c;
      inWord = true;
    }
  }
  if (inWord) words.push_back(word);
  return words;
}

void ReplayToEnd(Program& app) {
  while (app.surface.window.TimerEnabled(Timer::Forward)) ReplayTick(app, true);
}

int ScriptRunner::Run(std::istream& script) {
  std::string line;
  int number = 0;
  while (std::getline(script, line)) {
    ++number;
    const auto words = SplitWords(line);
    if (words.empty() || words[0].starts_with('#')) continue;
    bool finished = false;
    const CommandError e = Execute(words, finished);
    if (e.status != kOk) {
      dialogs_.messages.clear();
      std::cerr << "quorvale-cli: line " << number << ": " << e.message << "\n";
      return e.status;
    }
    dialogs_.Flush();
    if (finished) break;
  }
  return kOk;
}

CommandError ScriptRunner::FromDialogs(ExitStatus status, const std::string& fallback) {
  return {status, dialogs_.messages.empty() ? fallback : dialogs_.messages.back()};
}

CommandError ScriptRunner::Execute(const std::vector<std::string>& w, bool& finished) {
  const std::string& cmd = w[0];
  if (cmd == "drag") return Drag(w, true);
  if (cmd == "dragxy") return Drag(w, false);
  if (cmd == "dblclick") return DoubleClick(w);
  if (cmd == "new" || cmd == "number") return Deal(w);
  if (cmd == "tick" || cmd == "moveto") return WithNumber(w);
  if (cmd == "open" || cmd == "save") return WithPath(w);
  if (cmd == "player") return Player(w);
  if (cmd == "addfav" || cmd == "playfav") return Favorite(w);
  if (cmd == "history") return History(app_, out_, w);
  if (w.size() != 1) return Usage(cmd + " takes no arguments");
  // Commands of the window's menus: one that would be greyed does nothing.
  static const std::map<std::string, std::string> kMenuKeys{
      {"undo", "Undo"},   {"redo", "Redo"},       {"undoall", "UndoAll"}, {"redoall", "RedoAll"},
      {"pause", "Pause"}, {"restart", "Restart"}, {"close", "Close"}};
  if (auto key = kMenuKeys.find(cmd); key != kMenuKeys.end()) {
    if (CommandEnabled(app_, key->second)) ExecCommand(app_, key->second);
    return {};
  }
  if (cmd == "stock") {
    if (app_.cPlay.table().Exists() && app_.cPlay.GetTop(1, 0) >= 0) ClickCard(app_, app_.cPlay.GetTopPicID(1, 0));
  } else if (cmd == "show") {
    out_ << StateJson(app_) << "\n";
  } else if (cmd == "session") {
    out_ << SessionJson(app_) << "\n";
  } else if (cmd == "sounds") {
    out_ << JsonTexts(app_.recordedSound.events) << "\n";
    app_.recordedSound.events.clear();
  } else if (cmd == "solve" || cmd == "hint") {
    // The table as it lies, searched with the window's budget; nothing to say without a game.
    if (!TableAtRest(app_)) return {};
    const TableCopy copy = CopyTable(app_);
    const SolverResult r = SolveCopy(copy, SolverBudgetOf(app_), {});
    out_ << (cmd == "solve" ? "{" + ResultFields(r) + "}" : AdviceFor(copy, r).text) << "\n";
  } else if (cmd == "title") {
    app_.cGamePlay.Update_Title();
    out_ << app_.cGamePlay.Title() << "\n";
  } else if (cmd == "exit") {
    ShutDown(app_);
    finished = true;
  } else {
    return Usage("unknown command \"" + cmd + "\"");
  }
  return {};
}

CommandError ScriptRunner::Deal(const std::vector<std::string>& w) {
  const std::string& cmd = w[0];
  if (w.size() != 3) return Usage(cmd + " takes a game and a number");
  const bool typed = cmd == "number";
  if (typed ? !GameNo::IsDigitText(w[2]) : !IsRandomStyleNumber(w[2]))
    return Usage(typed ? "a typed game number is digits with at most one '.'"
                       : "a game number is a whole number of 1 to 15 digits");
  const GameNo no = typed ? GameNo::Typed(w[2]) : GameNo::Number(std::to_string(std::stoull(w[2])));
  if (!app_.cGamePlay.PlayNumber(w[1], no)) return FromDialogs(kUsageError, "the game cannot be dealt");
  return {};
}

CommandError ScriptRunner::WithNumber(const std::vector<std::string>& w) {
  int n = 0;
  if (w.size() != 2 || !ToInt(w[1], n) || (w[0] == "tick" && n < 0))
    return Usage(w[0] == "tick" ? "tick takes a number of seconds" : "moveto takes a journal position");
  if (w[0] == "moveto") {
    if (CommandEnabled(app_, "MovesMan")) app_.cEngine.MoveTo(n);
    return {};
  }
  for (int i = 0; i < n && app_.surface.window.TimerEnabled(Timer::Game); ++i) app_.cGamePlay.TickGame();
  return {};
}

CommandError ScriptRunner::WithPath(const std::vector<std::string>& w) {
  if (w.size() != 2) return Usage(w[0] + " takes a path");
  // The recent lists hold full paths, as the window's file dialogs give them, so that an
  // entry still opens from another folder.
  std::error_code ec;
  const std::string path = std::filesystem::absolute(w[1], ec).string();
  if (w[0] == "open") {
    if (!app_.cGamePlay.PlayFile(path, true)) return FromDialogs(kFileError, "the saved game cannot be played");
    ReplayToEnd(app_);
    return {};
  }
  if (!CommandEnabled(app_, "Save")) return {};
  std::string error;
  if (!app_.cEngine.SavetoFile(path, &error))
    return {kFileError, "the game could not be saved to \"" + w[1] + "\": " + error};
  AddRecent(app_, kRecentSaved, path);
  return {};
}

CommandError ScriptRunner::Favorite(const std::vector<std::string>& w) {
  std::error_code ec;
  const std::string path = w.size() == 2 ? std::filesystem::absolute(w[1], ec).string() : "";
  if (w[0] == "playfav") {
    if (w.size() != 2) return Usage("playfav takes a path");
    if (!app_.cGamePlay.PlayFavFile(path)) return FromDialogs(kFileError, "the favourite cannot be played");
    return {};
  }
  if (w.size() > 2) return Usage("addfav takes at most a path");
  if (!CommandEnabled(app_, "AddFav")) return {};
  if (!AddFavFile(app_, path)) return FromDialogs(kFileError, "the favourite could not be written");
  return {};
}

namespace {

// The card a pointer can press at a place, or why there is none.
CommandError CardAt(const Program& app, const std::vector<std::string>& w, int& pic) {
  int cell = 0, pile = 0, pos = 0;
  if (!ToInt(w[1], cell) || !ToInt(w[2], pile) || !ToInt(w[3], pos)) return Usage("a place is CELL PILE POS");
  const bool known = cell == 0 || cell == 1 || cell == 3;
  if (!app.cPlay.table().Exists() || !known || pile < 0 || pile >= app.cGames.Piles(cell) || pos < 0 ||
      pos > app.cPlay.GetTop(cell, pile))
    return Usage("no card lies at " + w[1] + " " + w[2] + " " + w[3]);
  if (cell != 0 && pos != app.cPlay.GetTop(cell, pile))
    return Usage("the pointer cannot reach the card at " + w[1] + " " + w[2] + " " + w[3]);
  pic = app.cPlay.GetPicID(cell, pile, pos);
  return {};
}

}  // namespace

CommandError ScriptRunner::Drag(const std::vector<std::string>& w, bool toPile) {
  if (w.size() != (toPile ? 5u : 6u))
    return Usage(toPile ? "drag takes CELL PILE POS TO_PILE" : "dragxy takes CELL PILE POS X Y");
  int pic = 0;
  if (auto e = CardAt(app_, w, pic); e.status != kOk) return e;
  if (toPile) {
    int to = 0;
    if (!ToInt(w[4], to) || to < 0 || to >= app_.cGames.Piles(0)) return Usage("no tableau pile " + w[4]);
    DragCardToPile(app_, pic, to);
    return {};
  }
  int x = 0, y = 0;
  if (!ToInt(w[4], x) || !ToInt(w[5], y)) return Usage("X and Y are whole twips");
  DragCardTo(app_, pic, x, y);
  return {};
}

CommandError ScriptRunner::Player(const std::vector<std::string>& w) {
  if (w.size() != 2) return Usage("player takes a name");
  bool listed = false;
  for (int p = 1; p <= PlayerCount(app_.cRegistry); ++p) listed |= GetPlayer(app_.cRegistry, p) == w[1];
  if (!listed)
    if (const std::string refused = AddPlayer(app_, w[1]); !refused.empty()) return {kFileError, refused};
  SetCurPlayer(app_.cRegistry, w[1]);
  app_.cGamePlay.Update_Title();
  return {};
}

CommandError ScriptRunner::DoubleClick(const std::vector<std::string>& w) {
  if (w.size() != 4) return Usage("dblclick takes CELL PILE POS");
  int pic = 0;
  if (auto e = CardAt(app_, w, pic); e.status != kOk) return e;
  DoubleClickCard(app_, pic);
  return {};
}

}  // namespace qv
