#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <vector>

namespace qv {

// The positions a search has reached, by their 128-bit hash, each with the most journal
// room it was reached with: a position seen with more room needs no second look, since
// all it could still do was done then. Grows by doubling up to a byte cap.
class PositionTable {
 public:
  enum Outcome { Added, Known, Full };

  explicit PositionTable(size_t maxBytes);
  // Records the position; Known when it was there with as much room or more.
  Outcome Visit(const std::array<uint64_t, 2>& h, int room);
  bool Seen(const std::array<uint64_t, 2>& h, int room) const;
  size_t Bytes() const { return slots_.size() * sizeof(Entry); }
  size_t Size() const { return used_; }

 private:
  struct Entry {
    uint64_t a = 0;
    uint64_t b = 0;  // the low 16 bits hold the room
  };
  size_t Find(uint64_t a, uint64_t b) const;
  bool Grow();

  std::vector<Entry> slots_;
  size_t used_ = 0;
  size_t maxBytes_;
};

}  // namespace qv
