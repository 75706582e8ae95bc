#pragma once

#include <array>
#include <cstdint>
#include <vector>

#include "engine/MoveRules.h"

namespace qv {

class Table;
class cGames;

constexpr int kSolverTableau = 10;      // the most tableau piles a game has
constexpr int kSolverFoundations = 8;
constexpr int kSolverPiles = kSolverTableau + kSolverFoundations;
constexpr int kSolverCards = 104;
constexpr uint8_t kFaceUp = 0x80;       // in a card byte, beside the card's PicID

// One move as the player makes it: a drag (from a tableau pile at a position, or from a
// foundation's top), a press on the Stock, or a double-click on a tableau pile's top card.
struct SolverMove {
  enum Kind : uint8_t { Drag, Stock, DoubleClick };
  Kind kind = Drag;
  uint8_t fromCell = 0;  // 0 tableau, 3 foundation
  uint8_t fromPile = 0;
  uint8_t fromPos = 0;
  uint8_t toPile = 0;    // a drag's tableau pile, a double-click's foundation
  bool operator==(const SolverMove&) const = default;
};

// A position in a few bytes: the piles' cards, bottom up, one after the other (tableau
// piles, then foundations), and how many cards the Stock still holds.
struct SolverPosition {
  std::array<uint8_t, kSolverCards> cards{};
  std::array<uint8_t, kSolverPiles> len{};
  uint8_t stock = 0;
  int room = 0;  // journal records left

  int Offset(int pile) const;
  int Foundation(int f) const { return kSolverTableau + f; }
  int OnFoundations() const;
};

// The game as the solver sees it: the rules, every card's value and the Stock's order.
// Moves are applied here only, on the plain position, by the rules that cPlay obeys.
class SolverGame {
 public:
  SolverGame(const Table& t, const cGames& g, int room);

  const MoveRules& Rules() const { return rules_; }
  const SolverPosition& Start() const { return start_; }
  const CardRec& Value(uint8_t card) const { return values_[card]; }
  int TotalCards() const { return total_; }
  bool Won(const SolverPosition& p) const { return p.OnFoundations() == total_; }

  // Every move the pointer accepts in position p. With the Stock empty, piles are
  // interchangeable and only the first empty pile is offered as a target.
  void Moves(const SolverPosition& p, std::vector<SolverMove>& out) const;
  // Makes the move with all that follows it by itself: the card turned up under it and
  // the completed sets that leave. The move must be one of Moves(p).
  void Apply(SolverPosition& p, const SolverMove& m) const;

  // Two positions that play alike hash alike: cards count by rank, suit, face (and an
  // Ace by the foundation its set goes to); with the Stock empty, piles as a multiset.
  std::array<uint64_t, 2> Hash(const SolverPosition& p) const;

  // The cards that lie face down and in the Stock, in place order (tableau piles bottom
  // up, then the Stock bottom up): the cards a player has not seen.
  std::vector<uint8_t> Unseen() const;
  // Lays other cards in those places, in the same order: one arrangement a player could face.
  void Rearrange(const std::vector<uint8_t>& unseen);

 private:
  void MoveCards(SolverPosition& p, int from, int count, int to) const;
  void TurnUpUnder(SolverPosition& p, int pile, int pos) const;
  void SendSets(SolverPosition& p) const;

  MoveRules rules_;
  std::array<CardRec, 256> values_{};
  std::array<uint16_t, 256> keys_{};
  std::vector<uint8_t> stockOrder_;  // bottom first
  SolverPosition start_;
  int total_ = 0;
};

}  // namespace qv
