#pragma once

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <vector>

#include "runtime/core/drawing/Color.h"

namespace tavrelkin {

// The pixels of a picture or a canvas, row by row from the top, without padding. Each pixel is a word 0xFFRRGGBB, the
// format of the toolkit's opaque 32-bit images.
class Surface {
 public:
  static constexpr std::uint32_t kOpaque = 0xFF000000;

  // Makes a surface of one colour, sizes in pixels. A negative size counts as 0.
  Surface(Int32 width, Int32 height, Color fill)
      : width_(std::max(width, 0)), height_(std::max(height, 0)), pixels_(offset(height_), kOpaque | fill.bits) {}

  Int32 width() const { return width_; }
  Int32 height() const { return height_; }
  bool contains(Int32 x, Int32 y) const { return x >= 0 && y >= 0 && x < width_ && y < height_; }

  // The first pixel of row y, from 0. The row must exist.
  std::uint32_t* row(Int32 y) { return pixels_.data() + offset(y); }
  const std::uint32_t* row(Int32 y) const { return pixels_.data() + offset(y); }

  void fill(Color c) { std::fill(pixels_.begin(), pixels_.end(), kOpaque | c.bits); }

 private:
  std::size_t offset(Int32 y) const { return static_cast<std::size_t>(y) * static_cast<std::size_t>(width_); }

  Int32 width_;
  Int32 height_;
  std::vector<std::uint32_t> pixels_;
};

}  // namespace tavrelkin
