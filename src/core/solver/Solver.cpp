#include "solver/Solver.h"

#include <algorithm>
#include <chrono>
#include <queue>

#include "solver/PositionTable.h"
#include "solver/Progress.h"
#include "solver/RowByRow.h"

namespace qv {

namespace {

enum class Mode { Dive, Rows, Whole };

// A position waiting to be looked at: reached from an expanded one by one move.
struct Open {
  int64_t key;      // higher first
  uint32_t order;   // later first among equals, so a line of play is followed
  uint32_t parent;  // index into expanded
  SolverMove move;
  bool operator<(const Open& o) const { return key != o.key ? key < o.key : order < o.order; }
};

struct Expanded {
  SolverPosition pos;
  uint32_t parent;
  SolverMove via;
  int depth;
};

class Search {
 public:
  // A dive goes depth first, the best move first and a row last, and takes only the moves
  // that make progress (and rows): quick to find easy wins, but its running out proves
  // nothing. The whole search goes best first over every move.
  Search(const SolverGame& g, const SolverBudget& b, std::stop_token stop, const std::function<bool()>& hook,
         Mode mode)
      : g_(g), budget_(b), stop_(std::move(stop)), hook_(hook), mode_(mode),
        seen_(static_cast<size_t>(b.mb) << 19) {}

  SolverResult Run();

 private:
  bool OutOfBudget();
  size_t Bytes() const {
    return seen_.Bytes() + expanded_.capacity() * sizeof(Expanded) + open_.size() * sizeof(Open);
  }
  SolverResult Finish(Verdict v, uint32_t last = 0);

  const SolverGame& g_;
  SolverBudget budget_;
  std::stop_token stop_;
  const std::function<bool()>& hook_;
  Mode mode_;  // Search runs a dive or the whole search; the rows have their own
  PositionTable seen_;
  std::vector<Expanded> expanded_;
  std::priority_queue<Open> open_;
  std::vector<SolverMove> moves_;
  std::chrono::steady_clock::time_point start_ = std::chrono::steady_clock::now();
  int64_t positions_ = 0;
  size_t peakBytes_ = 0;
  uint32_t order_ = 0;
  std::string limit_;
};

bool Search::OutOfBudget() {
  if (stop_.stop_requested() || (hook_ && !hook_())) limit_ = "stop";
  else if (budget_.positions > 0 && positions_ >= budget_.positions) limit_ = "positions";
  else if (Bytes() > static_cast<size_t>(budget_.mb) << 20) limit_ = "memory";
  else if ((expanded_.size() & 63) == 0 && std::chrono::steady_clock::now() - start_ >= std::chrono::milliseconds(budget_.ms))
    limit_ = "time";
  return !limit_.empty();
}

SolverResult Search::Finish(Verdict v, uint32_t last) {
  SolverResult r;
  r.verdict = v;
  r.positions = positions_;
  r.ms = std::chrono::duration_cast<std::chrono::milliseconds>(std::chrono::steady_clock::now() - start_).count();
  r.peakMb = static_cast<double>(std::max(peakBytes_, Bytes())) / (1 << 20);
  if (v == Verdict::Unknown) r.limit = limit_;
  if (v == Verdict::Winnable) {
    for (uint32_t n = last; n != 0; n = expanded_[n].parent) r.solution.push_back(expanded_[n].via);
    std::reverse(r.solution.begin(), r.solution.end());
    // A solution is told only after it has been played again from the start.
    if (!ReplaysToWin(g_, r.solution)) {
      r.verdict = Verdict::Unknown;
      r.limit = "replay";
      r.solution.clear();
    }
  }
  return r;
}

SolverResult Search::Run() {
  if (budget_.ms <= 0) {
    limit_ = "time";
    return Finish(Verdict::Unknown);
  }
  const SolverPosition& start = g_.Start();
  seen_.Visit(g_.Hash(start), start.room);
  positions_ = 1;
  if (g_.Won(start)) return Finish(Verdict::Winnable);
  expanded_.push_back({start, 0, {}, 0});
  uint32_t current = 0;
  for (;;) {
    // Every position reached from the one in hand goes on the open list once.
    g_.Moves(expanded_[current].pos, moves_);
    const bool dive = mode_ == Mode::Dive;
    const int here = dive ? Progress(g_, expanded_[current].pos) : 0;
    for (const SolverMove& m : moves_) {
      if (OutOfBudget()) return Finish(Verdict::Unknown);
      SolverPosition next = expanded_[current].pos;
      g_.Apply(next, m);
      const int score = Progress(g_, next);
      if (dive && score <= here && m.kind != SolverMove::Stock) continue;
      switch (seen_.Visit(g_.Hash(next), next.room)) {
        case PositionTable::Known: continue;
        case PositionTable::Full: limit_ = "memory"; return Finish(Verdict::Unknown);
        case PositionTable::Added: break;
      }
      ++positions_;
      if (g_.Won(next)) {
        expanded_.push_back({next, current, m, 0});
        return Finish(Verdict::Winnable, static_cast<uint32_t>(expanded_.size() - 1));
      }
      const int depth = expanded_[current].depth + 1;
      const int64_t key = dive ? (int64_t{depth} << 32) + score - (m.kind == SolverMove::Stock ? 1 << 24 : 0) : score;
      open_.push({key, ++order_, current, m});
    }
    peakBytes_ = std::max(peakBytes_, Bytes());
    if (open_.empty()) return Finish(Verdict::Lost);
    const Open o = open_.top();
    open_.pop();
    SolverPosition next = expanded_[o.parent].pos;
    g_.Apply(next, o.move);
    expanded_.push_back({next, o.parent, o.move, expanded_[o.parent].depth + 1});
    current = static_cast<uint32_t>(expanded_.size() - 1);
  }
}

// The row-by-row search, told as a search result: a win only after its replay.
SolverResult RunRows(const SolverGame& g, const SolverBudget& b, std::stop_token stop,
                     const std::function<bool()>& hook) {
  const auto start = std::chrono::steady_clock::now();
  SearchLimits limits{start + std::chrono::milliseconds(b.ms), b.positions, static_cast<size_t>(b.mb) << 20,
                      std::move(stop), &hook};
  const RowByRowResult rows = WinRowByRow(g, limits);
  SolverResult r;
  r.positions = rows.positions;
  r.ms = std::chrono::duration_cast<std::chrono::milliseconds>(std::chrono::steady_clock::now() - start).count();
  r.peakMb = static_cast<double>(rows.peakBytes) / (1 << 20);
  if (rows.won && ReplaysToWin(g, rows.moves)) {
    r.verdict = Verdict::Winnable;
    r.solution = rows.moves;
  } else {
    r.limit = rows.won ? "replay" : rows.limit;
  }
  return r;
}

}  // namespace

const char* VerdictName(Verdict v) {
  switch (v) {
    case Verdict::Winnable: return "winnable";
    case Verdict::Lost: return "lost";
    default: return "unknown";
  }
}

SolverResult Solve(const SolverGame& game, const SolverBudget& budget, std::stop_token stop,
                   const std::function<bool()>& nodeHook) {
  // A quick dive and a short whole search (which proves small games lost), then the
  // row-by-row search, each with a share of the time; when they run dry or out of their
  // share, the whole search with the time left decides. Only a whole search proves a
  // game lost.
  const auto start = std::chrono::steady_clock::now();
  SolverResult total;
  const std::pair<Mode, int> stages[] = {{Mode::Dive, 5}, {Mode::Whole, 2}, {Mode::Rows, 90}, {Mode::Whole, 100}};
  for (const auto& [mode, percent] : stages) {
    const int64_t spent =
        std::chrono::duration_cast<std::chrono::milliseconds>(std::chrono::steady_clock::now() - start).count();
    const bool last = &mode == &std::end(stages)[-1].first;
    SolverBudget b = budget;
    b.ms = last ? budget.ms - spent : std::max<int64_t>(1, budget.ms * percent / 100);
    if (budget.ms <= 0) b.ms = 0;
    if (b.positions > 0) b.positions = std::max<int64_t>(1, budget.positions - total.positions);
    SolverResult r = mode == Mode::Rows ? RunRows(game, b, stop, nodeHook) : Search(game, b, stop, nodeHook, mode).Run();
    r.positions += total.positions - (total.positions > 0);  // the start counts once
    r.ms = spent + r.ms;
    r.peakMb = std::max(r.peakMb, total.peakMb);
    total = r;
    // A stage that ran dry or out of its time hands over; a win, a proof, a stop or full
    // memory ends the search.
    const bool proved = r.verdict == Verdict::Winnable || (mode == Mode::Whole && r.verdict == Verdict::Lost);
    if (last || proved || !(r.limit.empty() || r.limit == "time")) break;
  }
  return total;
}

SolverResult SolveTable(const Table& t, const cGames& g, int room, const SolverBudget& budget, std::stop_token stop) {
  return Solve(SolverGame(t, g, room), budget, std::move(stop));
}

std::optional<SolverMove> BestMove(const SolverGame& game, const SolverPosition& p) {
  std::vector<SolverMove> moves;
  game.Moves(p, moves);
  std::optional<SolverMove> best;
  int bestScore = 0;
  for (const SolverMove& m : moves) {
    SolverPosition next = p;
    game.Apply(next, m);
    const int score = Progress(game, next) - (m.kind == SolverMove::Stock ? 1 << 24 : 0);
    if (!best || score > bestScore) best = m, bestScore = score;
  }
  return best;
}

bool ReplaysToWin(const SolverGame& game, const std::vector<SolverMove>& solution) {
  SolverPosition p = game.Start();
  std::vector<SolverMove> offered;
  for (const SolverMove& m : solution) {
    game.Moves(p, offered);
    if (std::find(offered.begin(), offered.end(), m) == offered.end()) return false;
    game.Apply(p, m);
  }
  return game.Won(p);
}

}  // namespace qv
