#pragma once

#include <array>
#include <functional>
#include <vector>

#include "surface/ISprites.h"

namespace qv {

// A surface that only remembers: every sprite's place, size, picture, visibility,
// parent and stacking. The command-line tool plays on it, and tests read it back.
class RecordingSprites : public ISprites {
 public:
  struct Sprite {
    double left = 0, top = 0, width = 1065, height = 1440;
    Picture picture;
    bool visible = false;
    int parent = -1;  // a card sprite's parent card, -1 for the window
    long z = 0;       // larger is nearer the front
  };

  RecordingSprites();

  void MakeElement(Sprites c, int i) override;
  void RemoveElement(Sprites c, int i) override;
  int Count(Sprites c) const override { return static_cast<int>(Of(c).size()); }
  void SetPicture(Sprites c, int i, Picture p) override { At(c, i).picture = p; }
  void Move(Sprites c, int i, double left, double top) override;
  double Left(Sprites c, int i) const override { return Of(c)[i].left; }
  double Top(Sprites c, int i) const override { return Of(c)[i].top; }
  void SetWidth(Sprites c, int i, double w) override { At(c, i).width = w; }
  void SetHeight(Sprites c, int i, double h) override { At(c, i).height = h; }
  void BringToFront(Sprites c, int i) override { At(c, i).z = ++zCounter_; }
  void SetVisible(Sprites c, int i, bool v) override { At(c, i).visible = v; }
  void SetParent(int card, int parent) override;
  void PaintFrame() override { ++frames_; }
  void Yield() override;

  const Sprite& Get(Sprites c, int i) const { return Of(c)[i]; }
  // Where a sprite stands on the table, adding its parent's place for a child.
  double TableLeft(int card) const;
  double TableTop(int card) const;
  long Frames() const { return frames_; }
  long Yields() const { return yields_; }
  long Moves() const { return moves_; }
  // Runs at every yield, as a pending event would: lets a test press during a deal.
  std::function<void()> onYield;

 private:
  std::vector<Sprite>& Of(Sprites c) { return sets_[static_cast<int>(c)]; }
  const std::vector<Sprite>& Of(Sprites c) const { return sets_[static_cast<int>(c)]; }
  Sprite& At(Sprites c, int i) { return Of(c)[i]; }

  std::array<std::vector<Sprite>, kSpriteCollections> sets_;
  long zCounter_ = 0, frames_ = 0, yields_ = 0, moves_ = 0;
  bool inYield_ = false;
};

}  // namespace qv
