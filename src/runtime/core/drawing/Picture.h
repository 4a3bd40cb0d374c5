#pragma once

#include "runtime/core/base/Ref.h"
#include "runtime/core/drawing/Color.h"
#include "runtime/core/drawing/Graphics.h"
#include "runtime/core/drawing/Surface.h"

namespace tavrelkin {

// Reads the pixels of a picture one by one. Each read returns the current pixel and ignores the mask. Must not outlive
// the picture.
class RGBSurface {
 public:
  explicit RGBSurface(const Surface& surface) : surface_(&surface) {}

  // The pixel at (x, y), counted from the top left corner; black off the picture.
  Color Pixel(Int32 x, Int32 y) const { return surface_->contains(x, y) ? Color{surface_->row(y)[x]} : kBlack; }

 private:
  const Surface* surface_;
};

// A bitmap in memory. A new picture is white.
class Picture : public Object {
 public:
  // Use NewPicture, which checks the arguments.
  Picture(Int32 width, Int32 height, Int32 depth);

  Int32 Width() const { return surface_.width(); }
  Int32 Height() const { return surface_.height(); }

  // The bits per pixel that were asked for. The pixels have 32 bits at any depth.
  Int32 Depth() const { return depth_; }

  tavrelkin::Graphics& Graphics() { return graphics_; }

  // The pixels, for reading. Valid while the picture lives.
  tavrelkin::RGBSurface RGBSurface() const { return tavrelkin::RGBSurface(surface_); }

  // The mask, a picture of the same size: white is transparent, black opaque. If the picture has no mask, `create`
  // makes a white one; without `create` the result is nil.
  Ref<Picture> Mask(bool create);

  // For drawing one surface on another. maskSurface() is null if the picture has no mask.
  const Surface& surface() const { return surface_; }
  const Surface* maskSurface() const { return mask_ ? &mask_->surface_ : nullptr; }

 private:
  Int32 depth_;
  Surface surface_;
  tavrelkin::Graphics graphics_;
  Ref<Picture> mask_;
};

// Makes a picture, sizes in pixels. Nil if a size is below 1 or above 32767. Any depth is accepted.
Ref<Picture> NewPicture(Int32 width, Int32 height, Int32 depth);

}  // namespace tavrelkin
