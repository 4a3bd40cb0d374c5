#include "runtime/core/drawing/Picture.h"

namespace tavrelkin {

Picture::Picture(Int32 width, Int32 height, Int32 depth)
    : depth_(depth), surface_(width, height, kWhite), graphics_(surface_) {}

Ref<Picture> Picture::Mask(bool create) {
  if (!mask_ && create) mask_ = New<Picture>(Width(), Height(), depth_);
  return mask_;
}

Ref<Picture> NewPicture(Int32 width, Int32 height, Int32 depth) {
  constexpr Int32 largest = 32767;
  const auto fits = [](Int32 size) { return size >= 1 && size <= largest; };
  if (!fits(width) || !fits(height)) return nullptr;
  return New<Picture>(width, height, depth);
}

}  // namespace tavrelkin
