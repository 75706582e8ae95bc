#include "solver/RowByRow.h"

#include <algorithm>
#include <queue>

#include "solver/PositionTable.h"
#include "solver/Progress.h"

namespace qv {

namespace {

struct Node {
  SolverPosition pos;
  uint32_t parent;
  SolverMove via;
};

class RowSearch {
 public:
  RowSearch(const SolverGame& g, const SearchLimits& limits, RowByRowResult& out)
      : g_(g), limits_(limits), out_(out) {}

  // Did the last pass leave anything out? When not, a wider one would find nothing new.
  bool Cut() const { return cut_; }

  // One pass: `width` positions searched between two rows; along the way, at most `spare`
  // rows dealt from a table other than the best (the second best costs one, the third two).
  bool Pass(int64_t width, const ProgressWeights& weights, int spare) {
    width_ = width;
    weights_ = weights;
    spare_ = spare;
    cut_ = false;
    out_.moves.clear();
    return Row(g_.Start(), out_.moves);
  }

 private:
  bool OutOfLimits();
  bool Row(const SolverPosition& root, std::vector<SolverMove>& path);
  bool DealFromBest(const std::vector<Node>& nodes, std::vector<std::pair<int, uint32_t>>& dealable,
                    std::vector<SolverMove>& path);
  void PathTo(const std::vector<Node>& nodes, uint32_t n, std::vector<SolverMove>& path) const;

  const SolverGame& g_;
  const SearchLimits& limits_;
  RowByRowResult& out_;
  int64_t width_ = 0;
  ProgressWeights weights_;
  int spare_ = 0;  // tables not the best that a pass may still deal from
  bool cut_ = false;
  size_t heldBytes_ = 0;  // by the rows the search came through
  std::vector<SolverMove> moves_;
};

bool RowSearch::OutOfLimits() {
  if (!out_.limit.empty()) return true;
  if (limits_.stop.stop_requested() || (limits_.hook && *limits_.hook && !(*limits_.hook)())) out_.limit = "stop";
  else if (limits_.positions > 0 && out_.positions >= limits_.positions) out_.limit = "positions";
  else if ((out_.positions & 255) == 0 && std::chrono::steady_clock::now() >= limits_.deadline) out_.limit = "time";
  return !out_.limit.empty();
}

void RowSearch::PathTo(const std::vector<Node>& nodes, uint32_t n, std::vector<SolverMove>& path) const {
  const size_t at = path.size();
  for (; n != 0; n = nodes[n].parent) path.push_back(nodes[n].via);
  std::reverse(path.begin() + static_cast<std::ptrdiff_t>(at), path.end());
}

bool RowSearch::Row(const SolverPosition& root, std::vector<SolverMove>& path) {
  // Best first over the table's own moves, the Stock left alone.
  std::vector<Node> nodes{{root, 0, {}}};
  std::priority_queue<std::pair<int, uint32_t>> open;
  PositionTable seen(limits_.bytes / 4);
  seen.Visit(g_.Hash(root), root.room);
  open.push({Progress(g_, root, weights_), 0});
  // The last row's table must be won by its moves alone, so it gets a longer look.
  const int64_t width = root.stock == 0 ? width_ * 4 : width_;
  std::vector<std::pair<int, uint32_t>> dealable;
  for (int64_t looked = 0; !open.empty() && looked < width; ++looked) {
    const uint32_t n = open.top().second;
    dealable.push_back(open.top());
    open.pop();
    g_.Moves(nodes[n].pos, moves_);
    for (const SolverMove& m : moves_) {
      if (m.kind == SolverMove::Stock) continue;
      if (OutOfLimits()) return false;
      SolverPosition next = nodes[n].pos;
      g_.Apply(next, m);
      if (seen.Visit(g_.Hash(next), next.room) != PositionTable::Added) continue;
      ++out_.positions;
      nodes.push_back({next, n, m});
      const auto id = static_cast<uint32_t>(nodes.size() - 1);
      if (g_.Won(next)) {
        PathTo(nodes, id, path);
        return true;
      }
      open.push({Progress(g_, next, weights_), id});
    }
    const size_t bytes = heldBytes_ + seen.Bytes() + nodes.capacity() * sizeof(Node);
    out_.peakBytes = std::max(out_.peakBytes, bytes);
    if (bytes > limits_.bytes) {
      out_.limit = "memory";
      return false;
    }
  }
  cut_ = cut_ || !open.empty();
  if (root.stock == 0) return false;
  const size_t held = seen.Bytes() + nodes.capacity() * sizeof(Node);
  heldBytes_ += held;
  const bool won = DealFromBest(nodes, dealable, path);
  heldBytes_ -= held;
  return won;
}

bool RowSearch::DealFromBest(const std::vector<Node>& nodes, std::vector<std::pair<int, uint32_t>>& dealable,
                             std::vector<SolverMove>& path) {
  // Deal from the best tables seen, best first.
  std::sort(dealable.begin(), dealable.end(), std::greater<>());
  int tried = 0;
  for (const auto& [score, n] : dealable) {
    if (tried > spare_) {
      cut_ = true;
      break;
    }
    SolverPosition next = nodes[n].pos;
    if (next.room < RowSize(g_.Rules(), next.stock)) continue;
    const size_t mark = path.size();
    PathTo(nodes, n, path);
    path.push_back({SolverMove::Stock, 1, 0, 0, 0});
    g_.Apply(next, path.back());
    ++out_.positions;
    // Each table after the best costs one of the pass's spare choices below it.
    spare_ -= tried;
    const bool won = g_.Won(next) || Row(next, path);
    spare_ += tried++;
    if (won) return true;
    if (OutOfLimits()) return false;
    path.resize(mark);
  }
  return false;
}

}  // namespace

RowByRowResult WinRowByRow(const SolverGame& g, const SearchLimits& limits) {
  RowByRowResult out;
  RowSearch search(g, limits, out);
  // Searches that value tables differently get stuck in different places: at each width
  // the passes take turns with a few ways of counting progress.
  constexpr ProgressWeights turns[] = {{120, 100, 12}, {0, 100, 12}, {60, 300, 12}, {200, 300, 12}};
  for (int64_t width = 200;; width *= 3) {
    for (const ProgressWeights& weights : turns) {
      for (int spare = 0; spare <= 2; ++spare) {
        if (search.Pass(width, weights, spare)) {
          out.won = true;
          return out;
        }
        if (!out.limit.empty() || !search.Cut()) return out;
      }
    }
  }
}

}  // namespace qv
