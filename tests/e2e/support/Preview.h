#pragma once

#include <cstdint>
#include <functional>
#include <vector>

#include "runtime/desktop/Desktop.h"

namespace tavrelkin::test {

constexpr int kPreviewWidth = 408;
constexpr int kPreviewHeight = 192;

using Pixels = std::vector<std::uint32_t>;  // 0xRRGGBB, row by row

// What the preview should look like.
struct Preview {
  std::function<std::uint32_t(int x, int y)> screen;  // 0xRRGGBB, as shown
  ScreenPoint centre;
  int zoom = 1;  // step of the slider, 1 to 3
  bool hasGuides = false;

  int cell() const { return 4 * zoom; }
  // The pixel of the screen that a pixel of the preview enlarges.
  ScreenPoint enlarged(int x, int y) const;
  // kPreviewWidth by kPreviewHeight pixels: cells, guides, marker and frame.
  Pixels pixels() const;
};

}  // namespace tavrelkin::test
