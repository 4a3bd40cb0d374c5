#pragma once

#include "runtime/core/drawing/Color.h"
#include "runtime/core/drawing/Surface.h"

namespace tavrelkin {

// The pixels of a picture, to be read one by one without the cost of a drawing. It shows what the picture holds at the
// moment of each read, whatever the picture's mask says, and must not outlive it.
class RGBSurface {
 public:
  explicit RGBSurface(const Surface& surface) : surface_(&surface) {}

  // The pixel at (x, y), counted from the top left corner; black off the picture.
  Color Pixel(Int32 x, Int32 y) const { return surface_->contains(x, y) ? Color{surface_->row(y)[x]} : kBlack; }

 private:
  const Surface* surface_;
};

}  // namespace tavrelkin
