#include "solver/PositionTable.h"

namespace qv {

namespace {
constexpr uint64_t kRoomBits = 0xFFFF;
// An empty slot has a == 0, so no stored hash may.
uint64_t KeyA(const std::array<uint64_t, 2>& h) { return h[0] ? h[0] : 1; }
uint64_t KeyB(const std::array<uint64_t, 2>& h) { return h[1] & ~kRoomBits; }
}  // namespace

PositionTable::PositionTable(size_t maxBytes) : maxBytes_(maxBytes) {
  size_t n = 1 << 12;
  while (n * 2 * sizeof(Entry) <= maxBytes_ && n < (1 << 16)) n *= 2;
  slots_.resize(n);
}

size_t PositionTable::Find(uint64_t a, uint64_t b) const {
  const size_t mask = slots_.size() - 1;
  size_t i = a & mask;
  while (slots_[i].a != 0 && (slots_[i].a != a || (slots_[i].b & ~kRoomBits) != b)) i = (i + 1) & mask;
  return i;
}

bool PositionTable::Seen(const std::array<uint64_t, 2>& h, int room) const {
  const Entry& e = slots_[Find(KeyA(h), KeyB(h))];
  return e.a != 0 && static_cast<int>(e.b & kRoomBits) >= room;
}

bool PositionTable::Grow() {
  if (slots_.size() * 2 * sizeof(Entry) > maxBytes_) return false;
  std::vector<Entry> old(slots_.size() * 2);
  old.swap(slots_);
  for (const Entry& e : old)
    if (e.a != 0) slots_[Find(e.a, e.b & ~kRoomBits)] = e;
  return true;
}

PositionTable::Outcome PositionTable::Visit(const std::array<uint64_t, 2>& h, int room) {
  const uint64_t a = KeyA(h), b = KeyB(h);
  Entry& e = slots_[Find(a, b)];
  if (e.a != 0) {
    if (static_cast<int>(e.b & kRoomBits) >= room) return Known;
    e.b = b | static_cast<uint64_t>(room);
    return Added;
  }
  // Doubles at 3/4 full; at the cap it fills to 7/8 at most, so a probe always ends.
  if ((used_ + 1) * 4 > slots_.size() * 3 && Grow()) return Visit(h, room);
  if ((used_ + 1) * 8 > slots_.size() * 7) return Full;
  e.a = a;
  e.b = b | static_cast<uint64_t>(room);
  ++used_;
  return Added;
}

}  // namespace qv
