#pragma once

#include "runtime/core/base/Ref.h"
#include "runtime/core/drawing/Color.h"
#include "runtime/core/drawing/Graphics.h"
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

// A bitmap in memory. A new one is white all over.
class Picture : public Object {
 public:
  // Use NewPicture, which looks at the arguments.
  Picture(Int32 width, Int32 height, Int32 depth);

  Int32 Width() const { return surface_.width(); }
  Int32 Height() const { return surface_.height(); }

  // Bits a pixel, as asked for. The pixels are held in 32 bits at any depth.
  Int32 Depth() const { return depth_; }

  tavrelkin::Graphics& Graphics() { return graphics_; }

  // The pixels for reading; of use as long as the picture lives.
  tavrelkin::RGBSurface RGBSurface() const { return tavrelkin::RGBSurface(surface_); }

  // The mask as a picture of the same size: white is transparent, black opaque. Where there is none yet, a white one is
  // made if `create` says so, else the result is nil.
  Ref<Picture> Mask(bool create);

  // For drawing one surface on another. The mask's surface is null where there is no mask.
  const Surface& surface() const { return surface_; }
  const Surface* maskSurface() const { return mask_ ? &mask_->surface_ : nullptr; }

 private:
  Int32 depth_;
  Surface surface_;
  tavrelkin::Graphics graphics_;
  Ref<Picture> mask_;
};

// A new picture. Nil where a size is below 1 or above 32767 pixels. Any depth will do.
Ref<Picture> NewPicture(Int32 width, Int32 height, Int32 depth);

}  // namespace tavrelkin
