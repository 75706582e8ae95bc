#include "surface/RecordingSprites.h"

namespace qv {

RecordingSprites::RecordingSprites() {
  for (auto& set : sets_) set.resize(1);
}

void RecordingSprites::MakeElement(Sprites c, int i) {
  auto& set = Of(c);
  if (static_cast<int>(set.size()) <= i) set.resize(i + 1, set[0]);
  set[i] = set[0];
  set[i].visible = false;
}

void RecordingSprites::RemoveElement(Sprites c, int i) {
  auto& set = Of(c);
  if (i + 1 == static_cast<int>(set.size())) set.pop_back();
  else set[i] = Sprite{};
}

void RecordingSprites::Move(Sprites c, int i, double left, double top) {
  auto& s = At(c, i);
  s.left = left;
  s.top = top;
  ++moves_;
}

void RecordingSprites::SetParent(int card, int parent) {
  auto& s = At(Sprites::PicCD, card);
  s.parent = parent;
}

double RecordingSprites::TableLeft(int card) const {
  const auto& s = Get(Sprites::PicCD, card);
  return s.parent < 0 ? s.left : s.left + TableLeft(s.parent);
}

double RecordingSprites::TableTop(int card) const {
  const auto& s = Get(Sprites::PicCD, card);
  return s.parent < 0 ? s.top : s.top + TableTop(s.parent);
}

void RecordingSprites::Yield() {
  ++yields_;
  // A real event loop does not deliver an event inside its own handler's yield twice.
  if (!onYield || inYield_) return;
  inYield_ = true;
  auto hook = onYield;
  hook();
  inYield_ = false;
}

}  // namespace qv
