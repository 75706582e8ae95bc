#include "solver/SolverGame.h"

#include <algorithm>

#include "engine/Table.h"
#include "engine/cGames.h"

namespace qv {

namespace {

uint64_t Mix(uint64_t x) {
  x ^= x >> 30;
  x *= 0xbf58476d1ce4e5b9ULL;
  x ^= x >> 27;
  x *= 0x94d049bb133111ebULL;
  return x ^ (x >> 31);
}

}  // namespace

int SolverPosition::Offset(int pile) const {
  int off = 0;
  for (int i = 0; i < pile; ++i) off += len[i];
  return off;
}

int SolverPosition::OnFoundations() const {
  int n = 0;
  for (int f = 0; f < kSolverFoundations; ++f) n += len[kSolverTableau + f];
  return n;
}

SolverGame::SolverGame(const Table& t, const cGames& g, int room) : rules_(MoveRules::Of(g, t.GoalBase())) {
  total_ = t.TotalCards();
  for (int pic = 0; pic < total_; ++pic) {
    for (bool up : {false, true}) {
      const int b = pic | (up ? kFaceUp : 0);
      values_[b] = t.Card(pic);
      values_[b].FaceMode = up;
      const CardRec& c = values_[b];
      keys_[b] = static_cast<uint16_t>(1 + c.Num + 13 * c.Suit + 52 * up + (c.Num == rules_.GoalBase ? 104 * (1 + c.Suitpile) : 0));
    }
  }
  int k = 0;
  auto put = [&](int cell, int pile, int slot) {
    for (int q = 0; q <= t.GetTop(cell, pile); ++q) {
      const int pic = t.GetPicID(cell, pile, q);
      start_.cards[k++] = static_cast<uint8_t>(pic | (t.Card(pic).FaceMode ? kFaceUp : 0));
      ++start_.len[slot];
    }
  };
  for (int p = 0; p < rules_.Piles; ++p) put(0, p, p);
  for (int f = 0; f < rules_.Foundations; ++f) put(3, f, kSolverTableau + f);
  for (int q = 0; q <= t.GetTop(1, 0); ++q) stockOrder_.push_back(static_cast<uint8_t>(t.GetPicID(1, 0, q)));
  start_.stock = static_cast<uint8_t>(stockOrder_.size());
  start_.room = room;
}

std::vector<uint8_t> SolverGame::Unseen() const {
  std::vector<uint8_t> out;
  for (int i = 0, n = start_.Offset(kSolverTableau); i < n; ++i)
    if (!(start_.cards[i] & kFaceUp)) out.push_back(start_.cards[i]);
  for (int i = 0; i < start_.stock; ++i) out.push_back(stockOrder_[i]);
  return out;
}

void SolverGame::Rearrange(const std::vector<uint8_t>& unseen) {
  size_t k = 0;
  for (int i = 0, n = start_.Offset(kSolverTableau); i < n && k < unseen.size(); ++i)
    if (!(start_.cards[i] & kFaceUp)) start_.cards[i] = unseen[k++];
  for (int i = 0; i < start_.stock && k < unseen.size(); ++i) stockOrder_[i] = unseen[k++];
}

void SolverGame::Moves(const SolverPosition& p, std::vector<SolverMove>& out) const {
  out.clear();
  std::array<int, kSolverPiles + 1> off{};
  for (int i = 0; i < kSolverPiles; ++i) off[i + 1] = off[i] + p.len[i];
  auto top = [&](int pile) -> const CardRec* {
    return p.len[pile] ? &values_[p.cards[off[pile] + p.len[pile] - 1]] : nullptr;
  };
  const bool symmetric = p.stock == 0;
  // Every pile that a card from (cell, pile) may go to; one empty pile stands for all
  // once the Stock is empty.
  auto targets = [&](int cell, int pile, int pos, const CardRec& c) {
    bool emptyOffered = false;
    for (int d = 0; d < rules_.Piles; ++d) {
      const CardRec* t = top(d);
      if (t == nullptr && symmetric) {
        if (emptyOffered) continue;
        emptyOffered = true;
      }
      if (MayDrop(rules_, cell, pile, d, t, c))
        out.push_back({SolverMove::Drag, static_cast<uint8_t>(cell), static_cast<uint8_t>(pile),
                       static_cast<uint8_t>(pos), static_cast<uint8_t>(d)});
    }
  };
  if (p.room >= 1) {
    for (int s = 0; s < rules_.Piles; ++s) {
      const int n = p.len[s];
      if (n == 0) continue;
      auto at = [&](int q) -> const CardRec& { return values_[p.cards[off[s] + q]]; };
      for (int q = n - 1; q >= 0; --q) {
        if (q < n - 1 && !InOrder(at(q), at(q + 1), rules_.MultiOrder, rules_.AK)) break;
        if (PickUp(rules_, at, n - 1, q) >= 0) targets(0, s, q, at(q));
      }
      const int f = DoubleClickTarget(
          rules_, [&](int f) { return top(kSolverTableau + f); },
          [&](int f) { return p.len[kSolverTableau + f] - 1; }, at(n - 1));
      if (f >= 0)
        out.push_back({SolverMove::DoubleClick, 0, static_cast<uint8_t>(s), static_cast<uint8_t>(n - 1),
                       static_cast<uint8_t>(f)});
    }
    for (int f = 0; f < rules_.Foundations; ++f) {
      const int n = p.len[kSolverTableau + f];
      if (n > 0) targets(3, f, n - 1, *top(kSolverTableau + f));
    }
  }
  if (p.stock > 0 && p.room >= RowSize(rules_, p.stock)) out.push_back({SolverMove::Stock, 1, 0, 0, 0});
}

void SolverGame::MoveCards(SolverPosition& p, int from, int count, int to) const {
  // The top `count` cards of pile `from` go onto pile `to`, face up.
  const int srcEnd = p.Offset(from) + p.len[from];
  const int srcBegin = srcEnd - count;
  const int dstEnd = p.Offset(to) + p.len[to];
  auto* c = p.cards.data();
  if (to > from)
    std::rotate(c + srcBegin, c + srcEnd, c + dstEnd);
  else
    std::rotate(c + dstEnd, c + srcBegin, c + srcEnd);
  p.len[from] = static_cast<uint8_t>(p.len[from] - count);
  p.len[to] = static_cast<uint8_t>(p.len[to] + count);
  const int newEnd = p.Offset(to) + p.len[to];
  for (int i = newEnd - count; i < newEnd; ++i) p.cards[i] |= kFaceUp;
}

void SolverGame::TurnUpUnder(SolverPosition& p, int pile, int pos) const {
  if (pile >= kSolverTableau) return;
  const int off = p.Offset(pile);
  if (TurnsUp(0, pos, [&](int q) -> const CardRec& { return values_[p.cards[off + q]]; }))
    p.cards[off + pos - 1] |= kFaceUp;
}

void SolverGame::SendSets(SolverPosition& p) const {
  // As the table does after every card: each set leaves card by card, turning up what lies
  // under it; a set that no longer fits in the journal stays.
  for (int s = 0; s < rules_.Piles && !Won(p);) {
    const int off = p.Offset(s), n = p.len[s];
    auto at = [&](int q) -> const CardRec& { return values_[p.cards[off + q]]; };
    if (n == 0 || !SetOnTop(rules_, at, n - 1)) {
      ++s;
      continue;
    }
    if (p.room < kSetCards) return;
    const int f = kSolverTableau + SetFoundation(rules_, at(n - 1));
    for (int k = 0; k < kSetCards; ++k) {
      TurnUpUnder(p, s, p.len[s] - 1);
      MoveCards(p, s, 1, f);
    }
    p.room -= kSetCards;
    s = 0;
  }
}

void SolverGame::Apply(SolverPosition& p, const SolverMove& m) const {
  switch (m.kind) {
    case SolverMove::Drag: {
      const int from = m.fromCell == 0 ? m.fromPile : kSolverTableau + m.fromPile;
      TurnUpUnder(p, from, m.fromPos);
      MoveCards(p, from, p.len[from] - m.fromPos, m.toPile);
      p.room -= 1;
      SendSets(p);
      break;
    }
    case SolverMove::DoubleClick:
      TurnUpUnder(p, m.fromPile, m.fromPos);
      MoveCards(p, m.fromPile, 1, kSolverTableau + m.toPile);
      p.room -= 1;
      SendSets(p);
      break;
    case SolverMove::Stock: {
      const int row = RowSize(rules_, p.stock);
      for (int k = 0; k < row; ++k) {
        // The Stock's top card is put on pile k before it, then its sets leave.
        const int at = p.Offset(k) + p.len[k];
        const int end = p.Offset(kSolverPiles);
        std::copy_backward(p.cards.begin() + at, p.cards.begin() + end, p.cards.begin() + end + 1);
        p.cards[at] = static_cast<uint8_t>(stockOrder_[--p.stock] | kFaceUp);
        ++p.len[k];
        p.room -= 1;
        SendSets(p);
      }
      break;
    }
  }
}

std::array<uint64_t, 2> SolverGame::Hash(const SolverPosition& p) const {
  std::array<uint64_t, 2> h{Mix(p.stock + 1), Mix(p.stock + 0x9e3779b97f4a7c15ULL)};
  int i = 0;
  for (int pile = 0; pile < kSolverPiles; ++pile) {
    uint64_t a = 0x243f6a8885a308d3ULL, b = 0x13198a2e03707344ULL;
    for (int q = 0; q < p.len[pile]; ++q, ++i) {
      const uint64_t k = keys_[p.cards[i]];
      a = Mix(a ^ k);
      b = Mix(b + k * 0x9e3779b97f4a7c15ULL);
    }
    // Tableau piles count as a multiset once no row can tell them apart; otherwise (and
    // for the foundations, which sets choose by number) each pile by its place.
    if (pile < kSolverTableau && p.stock == 0) {
      h[0] += Mix(a);
      h[1] += Mix(b ^ 0x5851f42d4c957f2dULL);
    } else {
      h[0] = Mix(h[0] ^ a) + pile;
      h[1] = Mix(h[1] + b) ^ pile;
    }
  }
  return h;
}

}  // namespace qv
