#include "solver/WinnableBack.h"

#include "session/Program.h"

namespace qv {

std::vector<TableCopy> PositionsAtStepEnds(const Program& app) {
  const cEngine& e = app.cEngine;
  TableCopy copy{Table(), app.cGames, cEngine::kMaxRecords, 0};
  copy.table.DealQuietly(app.cGames, app.cGamePlay.GameNo());
  std::vector<TableCopy> out{copy};
  Table& t = copy.table;
  for (int id = 1; id <= e.GetTransID(); ++id) {
    // As a redo makes the record: the card and those riding on it, face up, and the card
    // it uncovered turned up.
    const TransRec& r = e.Record(id);
    for (int i = 0; i <= r.mCards; ++i)
      t.UpdatePlace(t.GetPicID(r.SCell, r.SPile, r.SPos + i), r.DCell, r.DPile, r.DPos + i, true, true);
    if (r.tMod == 3) t.SetFace(t.GetPicID(r.SCell, r.SPile, r.SPos - 1), true);
    if (r.Multi != 1) {
      copy.room = cEngine::kMaxRecords - id;
      copy.key = static_cast<uint64_t>(id);
      out.push_back(copy);
    }
  }
  return out;
}

int LastWinnable(const std::vector<TableCopy>& at, const std::function<Verdict(const TableCopy&)>& verdict,
                 std::stop_token stop) {
  auto winnable = [&](int i) { return verdict(at[i]) == Verdict::Winnable; };
  int lo = -1, hi = static_cast<int>(at.size());  // lo proved winnable, hi not
  if (!at.empty() && winnable(hi - 1)) return hi - 1;
  --hi;
  while (hi - lo > 1 && !stop.stop_requested()) {
    const int mid = lo + (hi - lo) / 2;
    (winnable(mid) ? lo : hi) = mid;
  }
  return stop.stop_requested() ? -1 : lo;
}

}  // namespace qv
