#include "runtime/core/drawing/Graphics.h"

#include <algorithm>
#include <cstdlib>

namespace tavrelkin {

namespace {

// The coordinates from `from` up to, but not including, `to`. In 64 bits the sum of any position and size fits.
struct Span {
  std::int64_t from;
  std::int64_t to;
};

Span clipped(std::int64_t start, std::int64_t length, Int32 limit) {
  return {std::max<std::int64_t>(start, 0), std::min<std::int64_t>(start + length, limit)};
}

}  // namespace

void Graphics::FillRect(Int32 left, Int32 top, Int32 width, Int32 height) {
  const Span columns = clipped(left, width, Width());
  const Span rows = clipped(top, height, Height());
  if (columns.from >= columns.to || rows.from >= rows.to) return;
  touch();
  const std::uint32_t word = Surface::kOpaque | ForeColor.bits;
  for (std::int64_t y = rows.from; y < rows.to; ++y) {
    std::uint32_t* row = surface_.row(static_cast<Int32>(y));
    std::fill(row + columns.from, row + columns.to, word);
  }
}

void Graphics::DrawRect(Int32 left, Int32 top, Int32 width, Int32 height) {
  if (width < 1 || height < 1) return;
  FillRect(left, top, width, 1);
  FillRect(left, top, 1, height);
  const std::int64_t right = std::int64_t{left} + width - 1;
  const std::int64_t bottom = std::int64_t{top} + height - 1;
  if (bottom < Height()) FillRect(left, static_cast<Int32>(bottom), width, 1);
  if (right < Width()) FillRect(static_cast<Int32>(right), top, 1, height);
}

// Draws a line along an axis as a rectangle. It is clipped first, since a width or height may not fit an Int32.
void Graphics::drawStraight(Int32 left, Int32 top, Int32 right, Int32 bottom) {
  const Int32 fromX = std::max(left, 0);
  const Int32 fromY = std::max(top, 0);
  FillRect(fromX, fromY, std::min(right, Width()) - fromX + 1, std::min(bottom, Height()) - fromY + 1);
}

void Graphics::DrawLine(Int32 x1, Int32 y1, Int32 x2, Int32 y2) {
  if (x1 == x2 || y1 == y2) return drawStraight(std::min(x1, x2), std::min(y1, y2), std::max(x1, x2), std::max(y1, y2));
  const std::int64_t dx = std::int64_t{x2} - x1;
  const std::int64_t dy = std::int64_t{y2} - y1;
  const bool steep = std::abs(dy) > std::abs(dx);
  const std::int64_t length = std::max(std::abs(dx), std::abs(dy));
  const std::int64_t start = steep ? y1 : x1;
  const std::int64_t step = (steep ? dy : dx) < 0 ? -1 : 1;

  // The steps at which the coordinate of the longer axis lies on the surface. At each of them the other coordinate is
  // rounded to the nearest pixel.
  const std::int64_t limit = steep ? Height() : Width();
  const std::int64_t first = std::max<std::int64_t>(step > 0 ? -start : start - limit + 1, 0);
  const std::int64_t last = std::min(step > 0 ? limit - 1 - start : start, length);
  for (std::int64_t i = first; i <= last; ++i) {
    const std::int64_t along = start + i * step;
    const double share = static_cast<double>(i) / static_cast<double>(length);
    const auto across = [&](std::int64_t from, std::int64_t by) {
      return from + std::llround(static_cast<double>(by) * share);
    };
    const std::int64_t x = steep ? across(x1, dx) : along;
    const std::int64_t y = steep ? along : across(y1, dy);
    if (x >= 0 && x < Width() && y >= 0 && y < Height()) Pixel(static_cast<Int32>(x), static_cast<Int32>(y), ForeColor);
  }
}

}  // namespace tavrelkin
