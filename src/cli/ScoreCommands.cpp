#include "ScoreCommands.h"

#include <ctime>
#include <iostream>
#include <map>
#include <optional>

#include "Script.h"
#include "StateJson.h"
#include "scores/PlayerEdit.h"
#include "scores/Players.h"
#include "scores/ScoreText.h"
#include "scores/StatFigures.h"
#include "session/Program.h"

namespace qv {

namespace {

std::string RecordJson(const ScoreRec& r) {
  std::string out = "{\"date\":" + JsonText(r.Date) + ",\"player\":" + JsonText(r.Player);
  out += ",\"game\":" + JsonText(r.GameName) + ",\"number\":" + JsonText(r.GameNo.Text());
  out += ",\"number_typed\":" + std::string(r.GameNo.IsTyped() ? "true" : "false");
  out += ",\"time\":" + std::to_string(r.Time) + ",\"moves\":" + std::to_string(r.Moves);
  out += ",\"score\":" + std::to_string(r.Score) + ",\"won\":" + std::to_string(r.Won) + "}";
  return out;
}

std::string TotalsJson(const TotalsRec& t) {
  return "\"played\":" + std::to_string(t.Played) + ",\"won\":" + std::to_string(t.Won) +
         ",\"lost\":" + std::to_string(t.Lost) + ",\"time\":" + std::to_string(t.Time) +
         ",\"moves\":" + std::to_string(t.Moves) + ",\"score\":" + std::to_string(t.Score);
}

int Usage(const std::string& m) {
  std::cerr << "quorvale-cli: " << m << "\n";
  return kUsageError;
}

// "--name value" and bare "--flag" options after the command; false on anything else.
bool ReadOptions(const std::vector<std::string>& args, const std::map<std::string, bool>& known,
                 std::map<std::string, std::string>& out) {
  for (size_t i = 1; i < args.size(); ++i) {
    const auto k = known.find(args[i]);
    if (k == known.end()) return false;
    if (!k->second) {
      out[args[i]] = "1";
    } else {
      if (++i == args.size()) return false;
      out[args[i - 1]] = args[i];
    }
  }
  return true;
}

std::optional<CivilDate> Today(const std::map<std::string, std::string>& o) {
  const auto now = o.find("--now");
  if (now == o.end()) return LocalDay(std::time(nullptr));
  return ReadGeneralDate(now->second);
}

void TellSkipped(const cScore& s) {
  for (const auto& line : s.Skipped()) std::cerr << "quorvale-cli: skipped " << line << "\n";
}

int Scores(Program& app, const std::map<std::string, std::string>& o) {
  cScore& s = app.cScore;
  if (auto p = o.find("--player"); p != o.end()) s.OpenScore(p->second);
  else s.OpenAllScore();
  TellSkipped(s);
  std::string out = "[";
  for (int32_t i = 1; i <= s.ScoreTop(); ++i) out += (i > 1 ? "," : "") + RecordJson(s.ScoreItem(i));
  std::cout << out << "]\n";
  return kOk;
}

int Top(Program& app, const std::map<std::string, std::string>& o) {
  cScore& s = app.cScore;
  const std::string by = o.contains("--by") ? o.at("--by") : "score";
  const std::string game = o.contains("--game") ? o.at("--game") : "", player = o.contains("--player") ? o.at("--player") : "";
  if (by != "score" && by != "time" && by != "moves") return Usage("--by takes score, time or moves");
  if (by != "score" && (!game.empty() || !player.empty()))
    return Usage("the lists by time and by moves hold the won games of all players and games");
  s.OpenAllScore();
  if (by == "score") s.Sort(game, player, o.contains("--won") ? 1 : 0);
  else s.FinSort(by == "time", by == "moves");
  std::string out = "[";
  for (int i = 1; i <= 20; ++i) {
    const ScoreRec r = s.TopItem(i);
    if (r.Date.empty()) break;
    out += (i > 1 ? "," : "") + RecordJson(r);
  }
  std::cout << out << "]\n";
  return kOk;
}

int GameStat(Program& app, const std::map<std::string, std::string>& o) {
  const auto today = Today(o);
  if (!today) return Usage("--now takes a date such as 11/17/2026");
  cScore& s = app.cScore;
  s.OpenAllScore();
  TellSkipped(s);
  std::string out = "{\"general\":[";
  bool first = true;
  for (const auto& [label, value] : GeneralRows(s.AllTotals())) {
    out += (first ? "" : ",") + std::string("[") + JsonText(label) + "," + JsonText(value) + "]";
    first = false;
  }
  out += "],\"games\":[";
  for (int g = 1; g <= app.cData.TotalGames(); ++g) {
    const TotalsRec t = s.GameTotals(app.cData.GetGName(g));
    out += (g > 1 ? "," : "") + std::string("{\"game\":") + JsonText(app.cData.GetGName(g)) + "," + TotalsJson(t) +
           ",\"perc\":" + JsonText(GamePercent(t)) + "}";
  }
  out += "],\"players\":[";
  for (int p = 1; p <= PlayerCount(app.cRegistry); ++p) {
    const std::string name = GetPlayer(app.cRegistry, p);
    const TotalsRec t = s.PlayerTotals(name);
    out += (p > 1 ? "," : "") + std::string("{\"player\":") + JsonText(name) + "," + TotalsJson(t) +
           ",\"perc\":" + JsonText(PlayerPercent(t)) + "}";
  }
  out += "],\"periods\":{";
  first = true;
  for (const PeriodItem& item : PeriodItems()) {
    out += (first ? "" : ",") + JsonText(item.key) + ":[";
    bool firstRow = true;
    for (const PeriodRec& row : PeriodRows(s, item, *today)) {
      out += (firstRow ? "" : ",") + std::string("{\"label\":") + JsonText(row.Label) + "," + TotalsJson(row) + "}";
      firstRow = false;
    }
    out += "]";
    first = false;
  }
  std::cout << out << "}}\n";
  return kOk;
}

int Log(Program& app, const std::map<std::string, std::string>& o) {
  const auto today = Today(o);
  if (!today) return Usage("--now takes a date such as 11/17/2026");
  const std::string key = o.contains("--date") ? o.at("--date") : "";
  bool knownKey = false;
  for (const LogDateItem& item : LogDateItems()) knownKey |= key == item.key;
  if (!knownKey) return Usage("--date takes t, 3d, 7d, 30d, 3m or 5m");
  cScore& s = app.cScore;
  s.OpenAllScore();
  TellSkipped(s);
  std::string out = "[";
  bool first = true;
  for (int32_t i = 1; i <= s.ScoreTop(); ++i) {
    const ScoreRec& r = s.ScoreItem(i);
    if ((o.contains("--player") && o.at("--player") != r.Player) || (o.contains("--game") && o.at("--game") != r.GameName) ||
        !LogKeeps(r, key, *today))
      continue;
    out += (first ? "" : ",") + RecordJson(r);
    first = false;
  }
  std::cout << out << "]\n";
  return kOk;
}

int Players(Program& app, const std::vector<std::string>& args) {
  cRegistry& reg = app.cRegistry;
  if (PlayerCount(reg) == 0) SetPlayer(reg, 1, "Player1", true);  // as the first start does
  std::string refused;
  if (args.size() == 3 && args[1] == "add") refused = AddPlayer(app, args[2]);
  else if (args.size() == 4 && args[1] == "rename") refused = RenamePlayer(app, args[2], args[3]);
  else if (args.size() == 3 && args[1] == "delete") refused = DeletePlayer(app, args[2]);
  else if (args.size() == 3 && args[1] == "select") {
    bool listed = false;
    for (int p = 1; p <= PlayerCount(reg); ++p) listed |= GetPlayer(reg, p) == args[2];
    if (listed) SetCurPlayer(reg, args[2]);
    else refused = "There is no player \"" + args[2] + "\".";
  } else if (args.size() != 1) {
    return Usage("players takes nothing, add NAME, rename OLD NEW, delete NAME or select NAME");
  }
  if (!refused.empty()) {
    std::cerr << "quorvale-cli: " << refused << "\n";
    return kFileError;
  }
  std::string out = "{\"players\":[";
  for (int p = 1; p <= PlayerCount(reg); ++p) out += (p > 1 ? "," : "") + JsonText(GetPlayer(reg, p));
  std::cout << out << "],\"current\":" << JsonText(GetCurPlayer(reg)) << "}\n";
  return kOk;
}

}  // namespace

bool IsScoreCommand(const std::string& c) {
  return c == "scores" || c == "top" || c == "gamestat" || c == "log" || c == "players" || c == "export";
}

int ScoreCommand(Program& app, const std::vector<std::string>& args) {
  const std::string& c = args[0];
  if (c == "players") return Players(app, args);
  if (c == "export") {
    if (args.size() > 2) return Usage("export takes at most a file");
    if (args.size() == 1) {
      app.cScore.OpenAllScore();
      std::cout << ScoreReport(app);
      return kOk;
    }
    if (!app.cScore.ExportStat(args[1])) {
      std::cerr << "quorvale-cli: the report could not be written to \"" << args[1] << "\"\n";
      return kFileError;
    }
    return kOk;
  }
  static const std::map<std::string, std::map<std::string, bool>> kOptions{
      {"scores", {{"--player", true}}},
      {"top", {{"--game", true}, {"--player", true}, {"--won", false}, {"--by", true}}},
      {"gamestat", {{"--now", true}}},
      {"log", {{"--player", true}, {"--game", true}, {"--date", true}, {"--now", true}}}};
  std::map<std::string, std::string> o;
  if (!ReadOptions(args, kOptions.at(c), o)) return Usage("wrong options for " + c + "; see quorvale-cli --help");
  if (c == "scores") return Scores(app, o);
  if (c == "top") return Top(app, o);
  if (c == "gamestat") return GameStat(app, o);
  return Log(app, o);
}

std::string SessionJson(const Program& app) {
  const cScore& s = app.cScore;
  std::string out = "{\"games\":[";
  for (int i = 1; i <= s.SesTop(); ++i) out += (i > 1 ? "," : "") + RecordJson(s.SesItem(i));
  return out + "]," + TotalsJson(s.SessionTotals()) + "}";
}

}  // namespace qv
