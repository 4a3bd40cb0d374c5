#include <algorithm>
#include <vector>

#include "runtime/core/drawing/Graphics.h"
#include "runtime/core/drawing/Picture.h"

namespace tavrelkin {

namespace {

// Scaling along one axis: which pixels of the destination are drawn, and which source pixel each of them shows. A pixel
// whose source pixel doesn't exist is not drawn. The drawn ones are adjacent, so the first and a list are enough.
class AxisMap {
 public:
  AxisMap(Int32 position, Int32 size, Int32 limit, Int32 sourcePosition, Int32 sourceSize, Int32 sourceLimit) {
    if (size < 1 || sourceSize < 1) return;
    const std::int64_t end = std::clamp<std::int64_t>(std::int64_t{position} + size, 0, limit);
    for (std::int64_t at = std::clamp<std::int64_t>(position, 0, limit); at < end; ++at) {
      const std::int64_t source = sourcePosition + (at - position) * sourceSize / size;
      if (source < 0 || source >= sourceLimit) continue;
      if (sources_.empty()) first_ = static_cast<Int32>(at);
      sources_.push_back(static_cast<Int32>(source));
    }
  }

  Int32 first() const { return first_; }
  const std::vector<Int32>& sources() const { return sources_; }

 private:
  Int32 first_ = 0;
  std::vector<Int32> sources_;
};

void copyRow(std::uint32_t* to, const std::uint32_t* from, const std::vector<Int32>& columns) {
  for (const Int32 column : columns)
    *to++ = from[column];
}

// A white mask pixel keeps what is below, a black one shows what is above, a grey one mixes the two in proportion.
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
    if (mask[column] != transparent) *to = mixed(*to, from[column], mask[column]);
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
  if (columns.sources().empty() || rows.sources().empty()) return;
  touch();
  const Surface* mask = picture.maskSurface();
  std::uint32_t* above = nullptr;
  Int32 sourceAbove = -1;
  Int32 line = rows.first();
  for (const Int32 source : rows.sources()) {
    std::uint32_t* to = surface_.row(line++) + columns.first();
    if (mask) {
      copyMaskedRow(to, picture.surface().row(source), mask->row(source), columns.sources());
    } else if (source == sourceAbove) {
      std::copy_n(above, columns.sources().size(), to);
    } else {
      copyRow(to, picture.surface().row(source), columns.sources());
    }
    above = to;
    sourceAbove = source;
  }
}

}  // namespace tavrelkin
