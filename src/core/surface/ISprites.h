#pragma once

#include "surface/Picture.h"

namespace qv {

// The sprite collections of the main window. Element 0 of each exists before a game.
enum class Sprites { PicCD, PicHome, PicRight, PicStock, PicRes, PicWaste };
constexpr int kSpriteCollections = 6;

// What the table asks of the window's picture elements. Lengths are twips.
class ISprites {
 public:
  virtual ~ISprites() = default;
  virtual void MakeElement(Sprites c, int i) = 0;  // hidden, a copy of element 0
  virtual void RemoveElement(Sprites c, int i) = 0;
  virtual int Count(Sprites c) const = 0;
  virtual void SetPicture(Sprites c, int i, Picture p) = 0;
  virtual void Move(Sprites c, int i, double left, double top) = 0;
  virtual double Left(Sprites c, int i) const = 0;  // in the parent's frame
  virtual double Top(Sprites c, int i) const = 0;
  virtual void SetWidth(Sprites c, int i, double w) = 0;
  virtual void SetHeight(Sprites c, int i, double h) = 0;
  virtual void BringToFront(Sprites c, int i) = 0;
  virtual void SetVisible(Sprites c, int i, bool visible) = 0;
  // Makes card sprite `card` a child of card sprite `parent`, or of the window for -1.
  virtual void SetParent(int card, int parent) = 0;
  // Repaints at once, one display frame after the last: the steps of an animation.
  virtual void PaintFrame() = 0;
  // Runs the event loop once; the table is consistent whenever this is called.
  virtual void Yield() = 0;
};

}  // namespace qv
