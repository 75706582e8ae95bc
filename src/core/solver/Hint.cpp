#include "solver/Hint.h"

namespace qv {

namespace {

std::string CardName(const CardRec& c) {
  static const char* const kRanks[] = {"Ace", "2", "3", "4", "5", "6", "7", "8", "9", "10", "Jack", "Queen", "King"};
  static const char* const kSuits[] = {"Spades", "Hearts", "Clubs", "Diamonds"};
  return std::string("the ") + kRanks[c.Num] + " of " + kSuits[c.Suit];
}

int FaceDown(const SolverPosition& p) {
  int n = 0;
  for (int i = 0, end = p.Offset(kSolverTableau); i < end; ++i) n += !(p.cards[i] & kFaceUp);
  return n;
}

int Empty(const SolverGame& g, const SolverPosition& p) {
  int n = 0;
  for (int s = 0; s < g.Rules().Piles; ++s) n += p.len[s] == 0;
  return n;
}

const CardRec& TopOf(const SolverGame& g, const SolverPosition& p, int pile) {
  return g.Value(p.cards[p.Offset(pile) + p.len[pile] - 1]);
}

}  // namespace

std::string MoveSentence(const SolverGame& g, const SolverPosition& p, const SolverMove& m, bool guess) {
  std::string text;
  switch (m.kind) {
    case SolverMove::Stock: text = "Deal a row from the Stock"; break;
    case SolverMove::DoubleClick:
      text = "Double-click " + CardName(TopOf(g, p, m.fromPile)) + " on pile " + std::to_string(m.fromPile + 1) +
             " to send it to a foundation";
      break;
    case SolverMove::Drag: {
      const int from = m.fromCell == 0 ? m.fromPile : kSolverTableau + m.fromPile;
      const CardRec& card = g.Value(p.cards[p.Offset(from) + m.fromPos]);
      const int riding = p.len[from] - 1 - m.fromPos;
      text = "Move " + CardName(card);
      if (riding > 0) text += " and the " + std::to_string(riding) + (riding == 1 ? " card" : " cards") + " on it";
      text += m.fromCell == 0 ? " from pile " + std::to_string(m.fromPile + 1) : std::string(" back from its foundation");
      text += p.len[m.toPile] == 0 ? " to the empty pile " + std::to_string(m.toPile + 1)
                                   : " onto " + CardName(TopOf(g, p, m.toPile)) + " on pile " + std::to_string(m.toPile + 1);
      break;
    }
  }
  SolverPosition after = p;
  g.Apply(after, m);
  if (after.OnFoundations() >= p.OnFoundations() + kSetCards) return text + ": it completes a set";
  if (FaceDown(after) < FaceDown(p)) return text + ": it turns up a card";
  if (Empty(g, after) > Empty(g, p)) return text + ": it empties a pile";
  return text + (guess ? ": the most promising move found" : ": it keeps the game winnable");
}

HintAdvice AdviceFor(const TableCopy& copy, const SolverResult& r) {
  const SolverGame game(copy.table, copy.games, copy.room);
  HintAdvice a;
  a.verdict = r.verdict;
  if (r.verdict == Verdict::Winnable && !r.solution.empty()) {
    a.move = r.solution.front();
    a.text = MoveSentence(game, game.Start(), *a.move, false) + ".";
  } else if (r.verdict == Verdict::Lost) {
    a.text = "This game can no longer be won from here: every position that can still be reached was searched.";
  } else if ((a.move = BestMove(game, game.Start()))) {
    a.text = "No win was found in the time given. A guess: " + MoveSentence(game, game.Start(), *a.move, true) + ".";
  } else {
    a.text = "No win was found in the time given.";
  }
  return a;
}

}  // namespace qv
