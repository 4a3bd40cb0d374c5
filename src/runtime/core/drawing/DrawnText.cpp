#include "runtime/core/drawing/DrawnText.h"

#include <algorithm>

namespace tavrelkin {

bool Block::meets(const Block& other) const {
  return left < other.left + other.width && other.left < left + width && top < other.top + other.height &&
         other.top < top + height;
}

std::vector<std::uint32_t> pixelsOf(const Surface& surface, const Block& block) {
  std::vector<std::uint32_t> pixels;
  pixels.reserve(static_cast<std::size_t>(block.width) * static_cast<std::size_t>(block.height));
  for (Int32 y = block.top; y < block.top + block.height; ++y) {
    const std::uint32_t* first = surface.row(y) + block.left;
    pixels.insert(pixels.end(), first, first + block.width);
  }
  return pixels;
}

bool DrawnText::isWholeOn(const Surface& surface) const {
  if (place.left + place.width > surface.width() || place.top + place.height > surface.height()) return false;
  auto expected = drawn.begin();
  for (Int32 y = place.top; y < place.top + place.height; ++y, expected += place.width) {
    if (!std::equal(expected, expected + place.width, surface.row(y) + place.left)) return false;
  }
  return true;
}

}  // namespace tavrelkin
