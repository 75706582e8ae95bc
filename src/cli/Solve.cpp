#include "Solve.h"

#include <charconv>
#include <csignal>
#include <cmath>
#include <cstdio>
#include <iostream>
#include <random>
#include <sstream>

#include "CliSurface.h"
#include "Script.h"
#include "StateJson.h"
#include "engine/Table.h"
#include "engine/cGames.h"
#include "engine/mStudio.h"
#include "session/Program.h"
#include "settings/IniSettingsStore.h"
#include "settings/OverlaySettingsStore.h"
#include "solver/Solver.h"
#include "surface/RecordingSprites.h"
#include "surface/RecordingWindow.h"

namespace qv {

namespace {

volatile std::sig_atomic_t interrupted = 0;
extern "C" void OnInterrupt(int) { interrupted = 1; }

struct SolveOptions {
  SolverBudget budget;
  bool player = false;
  int samples = 20;
  bool solution = false;
};

bool ReadInt(const std::string& s, int64_t lo, int64_t hi, int64_t& out) {
  const char* last = s.data() + s.size();
  auto [p, ec] = std::from_chars(s.data(), last, out);
  return ec == std::errc() && p == last && out >= lo && out <= hi;
}

int Usage(const std::string& m) {
  std::cerr << "quorvale-cli: " << m << "\n";
  return kUsageError;
}

// The winning moves as the lines of a `run` script.
std::string ScriptOf(const SolverGame& game, const std::vector<SolverMove>& moves) {
  std::string out = "[";
  SolverPosition p = game.Start();
  for (size_t i = 0; i < moves.size(); ++i) {
    const SolverMove& m = moves[i];
    std::ostringstream line;
    switch (m.kind) {
      case SolverMove::Stock: line << "stock"; break;
      case SolverMove::DoubleClick: line << "dblclick 0 " << +m.fromPile << " " << +m.fromPos; break;
      case SolverMove::Drag:
        line << "drag " << +m.fromCell << " " << +m.fromPile << " " << +m.fromPos << " " << +m.toPile;
        break;
    }
    game.Apply(p, m);
    out += (i ? "," : "") + JsonText(line.str());
  }
  return out + "]";
}

// 95% Wilson interval of k in n.
void Wilson(double k, double n, double& low, double& high) {
  if (n == 0) {
    low = 0, high = 1;
    return;
  }
  const double z = 1.96, p = k / n, d = 1 + z * z / n;
  const double c = (p + z * z / (2 * n)) / d, w = z * std::sqrt(p * (1 - p) / n + z * z / (4 * n * n)) / d;
  low = std::max(0.0, c - w), high = std::min(1.0, c + w);
}

std::string Fixed(double v, int digits) {
  std::ostringstream s;
  s.setf(std::ios::fixed);
  s.precision(digits);
  s << v;
  return s.str();
}

std::string Line(const std::string& numberJson, const Table& t, const cGames& g, int room, const SolveOptions& o) {
  auto stopped = [] { return interrupted == 0; };
  SolverGame game(t, g, room);
  std::ostringstream out;
  out << "{\"number\":" << numberJson;
  const SolverResult r = Solve(game, o.budget, {}, stopped);
  out << "," << ResultFields(r);
  if (o.solution && r.verdict == Verdict::Winnable) out << ",\"script\":" << ScriptOf(game, r.solution);
  if (!o.player) return out.str() + "}";
  // The player's view: the cards not yet seen could lie in any order; each sample has
  // an equal share of the budget.
  std::mt19937_64 random(std::hash<std::string>{}(numberJson));
  const std::vector<uint8_t> unseen = game.Unseen();
  SolverBudget each = o.budget;
  each.ms = std::max<int64_t>(1, o.budget.ms / o.samples);
  int winnable = 0, lost = 0;
  for (int i = 0; i < o.samples && !interrupted; ++i) {
    std::vector<uint8_t> order = unseen;
    std::shuffle(order.begin(), order.end(), random);
    SolverGame sample = game;
    sample.Rearrange(order);
    const Verdict v = Solve(sample, each, {}, stopped).verdict;
    winnable += v == Verdict::Winnable;
    lost += v == Verdict::Lost;
  }
  double low = 0, high = 0, ignored = 0;
  // An arrangement left undecided counts against the low end and for the high one.
  Wilson(winnable, o.samples, low, ignored);
  Wilson(o.samples - lost, o.samples, ignored, high);
  out << ",\"samples\":" << o.samples << ",\"samples_winnable\":" << winnable << ",\"samples_lost\":" << lost
      << ",\"chance\":" << Fixed(static_cast<double>(winnable) / o.samples, 3) << ",\"low\":" << Fixed(low, 3)
      << ",\"high\":" << Fixed(high, 3);
  return out.str() + "}";
}

}  // namespace

std::string ResultFields(const SolverResult& r) {
  std::ostringstream out;
  out << "\"verdict\":\"" << VerdictName(r.verdict) << "\",\"moves\":" << r.solution.size()
      << ",\"positions\":" << r.positions << ",\"ms\":" << r.ms << ",\"peak_mb\":" << Fixed(r.peakMb, 1)
      << ",\"limit\":" << JsonText(r.limit);
  return out.str();
}

namespace {

// Prints one line and tells whether anyone still reads them.
bool Emit(const std::string& line) {
  std::cout << line << "\n";
  std::cout.flush();
  return static_cast<bool>(std::cout);
}

}  // namespace

int SolveCommand(const std::vector<std::string>& args) {
  std::vector<std::string> plain;
  SolveOptions o;
  bool samplesGiven = false;
  for (size_t i = 1; i < args.size(); ++i) {
    const std::string& a = args[i];
    int64_t v = 0;
    if (a == "--budget" || a == "--memory" || a == "--samples") {
      if (i + 1 == args.size()) return Usage(a + " needs a number");
      const std::string& n = args[++i];
      if (a == "--budget") {
        if (!ReadInt(n, 1, 86'400'000, v)) return Usage("--budget is 1 to 86400000 milliseconds");
        o.budget.ms = v;
      } else if (a == "--memory") {
        if (!ReadInt(n, 16, 65'536, v)) return Usage("--memory is 16 to 65536 MB");
        o.budget.mb = v;
      } else {
        if (!ReadInt(n, 1, 100'000, v)) return Usage("--samples is 1 to 100000");
        o.samples = static_cast<int>(v);
        samplesGiven = true;
      }
    } else if (a == "--player") {
      o.player = true;
    } else if (a == "--solution") {
      o.solution = true;
    } else if (a.starts_with("--")) {
      return Usage("unknown option " + a);
    } else {
      plain.push_back(a);
    }
  }
  if (samplesGiven && !o.player) return Usage("--samples goes with --player");
  if (plain.size() != 1 && plain.size() != 3) return Usage("solve takes GAME FROM TO, or FILE");

  IniSettingsStore file(IniSettingsStore::DefaultPath());
  OverlaySettingsStore settings(file);
  RecordingSprites sprites;
  RecordingWindow window;
  CliDialogs dialogs;
  SystemClock clock;
  Program app({sprites, window, dialogs, clock}, settings, PlatformFolders::FromEnvironment());
  std::signal(SIGPIPE, SIG_IGN);
  std::signal(SIGINT, OnInterrupt);

  if (plain.size() == 1) {
    if (!app.cGamePlay.PlayFile(plain[0], false)) {
      std::cerr << "quorvale-cli: " << (dialogs.messages.empty() ? "the file cannot be read" : dialogs.messages.back())
                << "\n";
      return kFileError;
    }
    ReplayToEnd(app);
    const int room = cEngine::kMaxRecords - app.cEngine.GetTransID();
    Emit(Line(JsonText(app.cGamePlay.GameNo().Text()), app.cPlay.table(), app.cGames, room, o));
    return interrupted ? 130 : kOk;
  }
  int64_t from = 0, to = 0;
  if (!ReadInt(plain[1], 1, 999'999'999'999'999, from) || !ReadInt(plain[2], 1, 999'999'999'999'999, to))
    return Usage("FROM and TO are game numbers of 1 to 15 digits");
  if (from > to) return Usage("FROM is greater than TO");
  if (!app.cCustom.Init(plain[0])) return Usage("no game is called \"" + plain[0] + "\"");
  cGames games;
  SetupGame(app.cCustom, games);
  Table t;
  for (int64_t n = from; n <= to && !interrupted; ++n) {
    t.DealQuietly(games, GameNo::Number(static_cast<uint64_t>(n)));
    if (!Emit(Line(std::to_string(n), t, games, cEngine::kMaxRecords, o))) return kOk;
  }
  return interrupted ? 130 : kOk;
}

}  // namespace qv
