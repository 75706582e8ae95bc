#include "solver/Progress.h"

namespace qv {

int Progress(const SolverGame& g, const SolverPosition& p, const ProgressWeights& w) {
  const MoveRules& r = g.Rules();
  // A card double-clicked home alone (an Ace, mostly) keeps its set from ever leaving.
  const int home = p.OnFoundations();
  int score = 1300 * (home / kSetCards) - 150 * (home % kSetCards) + 10 * p.stock;
  int i = 0;
  for (int s = 0; s < r.Piles; ++s) {
    if (p.len[s] == 0) score += w.empty;
    for (int q = 0; q < p.len[s]; ++q, ++i) {
      const CardRec& c = g.Value(p.cards[i]);
      if (!c.FaceMode) {
        score -= w.faceDown;
      } else if (q > 0) {
        const CardRec& under = g.Value(p.cards[i - 1]);
        if (under.FaceMode && InOrder(under, c, r.MultiOrder, r.AK)) score += w.link;
      }
    }
  }
  return score;
}

}  // namespace qv
