#include "runtime/core/drawing/Surface.h"

#include <algorithm>

namespace tavrelkin {

Surface::Surface(Int32 width, Int32 height, Color fill)
    : width_(std::max(width, 0)),
      height_(std::max(height, 0)),
      pixels_(static_cast<std::size_t>(width_) * static_cast<std::size_t>(height_), kOpaque | fill.bits) {}

void Surface::fill(Color c) {
  std::fill(pixels_.begin(), pixels_.end(), kOpaque | c.bits);
}

}  // namespace tavrelkin
