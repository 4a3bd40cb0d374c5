#include "color/DistinctColors.h"

#include <algorithm>
#include <cstdlib>

namespace tavrelkin {

namespace {

constexpr Double kDarkest = 30.0;  // percent

bool areAlike(Color c, Color d) {
  const Int32 difference =
      std::abs(c.red() - d.red()) + std::abs(c.green() - d.green()) + std::abs(c.blue() - d.blue());
  const Int32 brighter = std::max(c.red(), d.red()) + std::max(c.green(), d.green()) + std::max(c.blue(), d.blue());
  return difference <= toInt32(brighter * 0.1);
}

bool isTaken(Color c, const std::vector<Color>& before) {
  if (readColorValue(c) * 100.0 < kDarkest) return false;
  return std::none_of(before.begin(), before.end(), [c](Color d) { return areAlike(c, d); });
}

}  // namespace

std::vector<Color> distinctColors(const Picture& picture, std::size_t most) {
  const RGBSurface pixels = picture.RGBSurface();
  std::vector<Color> colors;
  for (Int32 x = 0; x < picture.Width(); ++x) {
    for (Int32 y = 0; y < picture.Height(); ++y) {
      const Color c = pixels.Pixel(x, y);
      if (!isTaken(c, colors)) continue;
      colors.push_back(c);
      if (colors.size() == most) return colors;
    }
  }
  return colors;
}

}  // namespace tavrelkin
