#pragma once

#include <cstdint>
#include <vector>

#include "runtime/core/drawing/Color.h"
#include "runtime/core/drawing/Surface.h"
#include "runtime/core/text/Text.h"

namespace tavrelkin {

// A block of pixels of a surface.
struct Block {
  Int32 left = 0;
  Int32 top = 0;
  Int32 width = 0;
  Int32 height = 0;

  bool isEmpty() const { return width < 1 || height < 1; }
  bool meets(const Block& other) const;
};

// A text as it was drawn on a surface, for one who can show it finer than the surface's pixels do.
struct DrawnText {
  String text;
  Int32 left = 0;
  Int32 baseline = 0;
  Int32 size = 0;
  Color color;

  Block place{};                        // what it may have changed, cut off at the surface's edges
  std::vector<std::uint32_t> ground{};  // the pixels there before, row by row
  std::vector<std::uint32_t> drawn{};   // and with the text

  // Whether a surface, which may have another size by now, has it as it was drawn, and nothing over it.
  bool isWholeOn(const Surface& surface) const;
};

// The pixels of a block, which must lie on the surface, row by row.
std::vector<std::uint32_t> pixelsOf(const Surface& surface, const Block& block);

}  // namespace tavrelkin
