#include "runtime/toolkit/widgets/Enlargement.h"

#include <algorithm>
#include <cstdint>
#include <cstring>

#include <QPainter>

#include "runtime/toolkit/widgets/Fonts.h"

namespace tavrelkin {

bool Enlargement::isWhole() const {
  return scale_ == qFloor(scale_);
}

int Enlargement::edge(int i) const {
  return qFloor(i * scale_ + 0.5);
}

int Enlargement::pixelAt(int onScreen) const {
  return qCeil((onScreen + 0.5) / scale_) - 1;
}

QImage Enlargement::of(const Surface& surface) const {
  QImage result(edge(surface.width()), edge(surface.height()), QImage::Format_RGB32);
  std::vector<int> columns(static_cast<std::size_t>(result.width()));
  for (int x = 0; x < surface.width(); ++x)
    std::fill(columns.begin() + edge(x), columns.begin() + edge(x + 1), x);

  for (int y = 0; y < surface.height(); ++y) {
    const std::uint32_t* from = surface.row(y);
    auto* first = reinterpret_cast<std::uint32_t*>(result.scanLine(edge(y)));
    std::ranges::transform(columns, first, [from](int column) { return from[column]; });
    for (int below = edge(y) + 1; below < edge(y + 1); ++below)
      std::memcpy(result.scanLine(below), first, columns.size() * sizeof(std::uint32_t));
  }
  return result;
}

QImage Enlargement::of(const Surface& ground, const std::vector<DrawnText>& texts) const {
  QImage result = of(ground);
  result.setDevicePixelRatio(scale_);
  QPainter painter(&result);
  for (const DrawnText& text : texts)
    FontPainter::draw(text, painter);
  painter.end();
  result.setDevicePixelRatio(1);
  return result;
}

}  // namespace tavrelkin
