#include <algorithm>
#include <vector>

#include "runtime/drawing/Graphics.h"
#include "runtime/drawing/Picture.h"

namespace tavrelkin {

namespace {

// One axis of a scaling: which pixels of the destination are drawn, and which source pixel each of them shows.
class AxisMap {
 public:
  AxisMap(Int32 position, Int32 size, Int32 limit, Int32 sourcePosition, Int32 sourceSize, Int32 sourceLimit)
      : first_(std::clamp<std::int64_t>(position, 0, limit)) {
    const std::int64_t end = std::clamp<std::int64_t>(std::int64_t{position} + size, 0, limit);
    if (sourceSize < 1) return;
    for (std::int64_t at = first_; at < end; ++at) {
      const std::int64_t source = sourcePosition + (at - position) * sourceSize / size;
      source_.push_back(source >= 0 && source < sourceLimit ? static_cast<Int32>(source) : kNothing);
    }
  }

  static constexpr Int32 kNothing = -1;

  Int32 first() const { return static_cast<Int32>(first_); }
  const std::vector<Int32>& sources() const { return source_; }
  bool empty() const { return source_.empty(); }

 private:
  std::int64_t first_;
  std::vector<Int32> source_;
};

void copyRow(std::uint32_t* to, const std::uint32_t* from, const std::vector<Int32>& columns) {
  for (const Int32 column : columns) {
    if (column != AxisMap::kNothing) *to = from[column];
    ++to;
  }
}

// In a mask white is transparent and black opaque; what lies between mixes the two pictures in that proportion.
std::uint32_t mixed(std::uint32_t below, std::uint32_t above, std::uint32_t mask) {
  const Color under{below};
  const Color over{above};
  const Int32 share = Color{mask}.blue();
  const auto mix = [share](Int32 a, Int32 b) { return (a * share + b * (255 - share)) / 255; };
  return Surface::kOpaque |
         RGB(mix(under.red(), over.red()), mix(under.green(), over.green()), mix(under.blue(), over.blue())).bits;
}

void copyMaskedRow(std::uint32_t* to, const std::uint32_t* from, const std::uint32_t* mask,
                   const std::vector<Int32>& columns) {
  constexpr std::uint32_t transparent = Surface::kOpaque | kWhite.bits;
  for (const Int32 column : columns) {
    if (column != AxisMap::kNothing && mask[column] != transparent) *to = mixed(*to, from[column], mask[column]);
    ++to;
  }
}

}  // namespace

void Graphics::DrawPicture(const Picture& picture, Int32 x, Int32 y) {
  DrawPicture(picture, x, y, kNaturalSize, kNaturalSize, 0, 0, kNaturalSize, kNaturalSize);
}

void Graphics::DrawPicture(const Picture& picture, Int32 x, Int32 y, Int32 destinationWidth, Int32 destinationHeight,
                           Int32 sourceX, Int32 sourceY, Int32 sourceWidth, Int32 sourceHeight) {
  const auto orNatural = [](Int32 size, Int32 natural) { return size == kNaturalSize ? natural : size; };
  const AxisMap columns(x, orNatural(destinationWidth, picture.Width()), Width(), sourceX,
                        orNatural(sourceWidth, picture.Width()), picture.Width());
  const AxisMap rows(y, orNatural(destinationHeight, picture.Height()), Height(), sourceY,
                     orNatural(sourceHeight, picture.Height()), picture.Height());
  if (columns.empty() || rows.empty()) return;
  touch();
  const Surface* mask = picture.maskSurface();
  Int32 line = rows.first();
  for (const Int32 source : rows.sources()) {
    std::uint32_t* to = surface_.row(line++) + columns.first();
    if (source == AxisMap::kNothing) continue;
    const std::uint32_t* from = picture.surface().row(source);
    if (mask) {
      copyMaskedRow(to, from, mask->row(source), columns.sources());
    } else {
      copyRow(to, from, columns.sources());
    }
  }
}

}  // namespace tavrelkin
