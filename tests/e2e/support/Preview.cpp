#include "e2e/support/Preview.h"

#include <algorithm>

namespace tavrelkin::test {

namespace {

constexpr std::uint32_t kGuideColor = 0xCECECE;
constexpr std::uint32_t kMarkerOnDark = 0xF97324;
constexpr std::uint32_t kMarkerOnLight = 0x000000;
constexpr std::uint32_t kFrameColor = 0xFFFFFF;

struct Rectangle {
  int left, top, width, height;

  bool hasOnItsEdge(int x, int y) const {
    const int right = left + width - 1;
    const int bottom = top + height - 1;
    const bool isInside = x >= left && x <= right && y >= top && y <= bottom;
    return isInside && (x == left || x == right || y == top || y == bottom);
  }
};

bool isDark(std::uint32_t rgb) {
  return std::max({rgb >> 16 & 255, rgb >> 8 & 255, rgb & 255}) * 2 < 255;
}

}  // namespace

ScreenPoint Preview::enlarged(int x, int y) const {
  const int columns = kPreviewWidth / cell();
  const int rows = kPreviewHeight / cell();
  return {centre.x - columns / 2 + x / cell(), centre.y - rows / 2 + y / cell()};
}

Pixels Preview::pixels() const {
  const Rectangle marker{kPreviewWidth / cell() / 2 * cell(), kPreviewHeight / cell() / 2 * cell(), cell() + 1,
                         cell() + 1};
  const Rectangle frame{0, 0, kPreviewWidth, kPreviewHeight};
  const auto markerColor = isDark(screen(centre.x, centre.y)) ? kMarkerOnDark : kMarkerOnLight;
  const auto color = [&](int x, int y) {
    if (frame.hasOnItsEdge(x, y)) return kFrameColor;
    if (marker.hasOnItsEdge(x, y)) return markerColor;
    if (hasGuides && (x % cell() == 0 || y % cell() == 0)) return kGuideColor;
    const ScreenPoint at = enlarged(x, y);
    return screen(at.x, at.y);
  };

  Pixels result;
  for (int y = 0; y < kPreviewHeight; ++y)
    for (int x = 0; x < kPreviewWidth; ++x)
      result.push_back(color(x, y));
  return result;
}

}  // namespace tavrelkin::test
