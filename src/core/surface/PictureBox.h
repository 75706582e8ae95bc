#pragma once

#include "surface/Picture.h"

namespace qv {

// A picture element the core paints named pictures into, at twip-free unit positions.
class IPictureBox {
 public:
  virtual ~IPictureBox() = default;
  virtual void Clear() = 0;
  virtual void Paint(const Picture& picture, int x, int y) = 0;
};

}  // namespace qv
