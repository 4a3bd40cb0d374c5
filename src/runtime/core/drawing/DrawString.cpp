#include <cassert>
#include <utility>

#include "runtime/core/drawing/Graphics.h"
#include "runtime/core/drawing/TextPainter.h"

namespace tavrelkin {

namespace {

std::unique_ptr<TextPainter> installed;

}  // namespace

const TextPainter& textPainter() {
  assert(installed);
  return *installed;
}

void installTextPainter(std::unique_ptr<TextPainter> painter) {
  installed = std::move(painter);
}

Int32 Graphics::TextAscent() const {
  return textPainter().ascent(TextSize);
}

void Graphics::DrawString(const String& text, Int32 x, Int32 y) {
  if (Width() == 0 || Height() == 0) return;
  touch();
  DrawnText record{.text = text, .left = x, .baseline = y, .size = TextSize, .color = ForeColor};
  if (!observer_) return textPainter().draw(record, surface_);

  record.place = textPainter().placeOf(record, surface_);
  if (record.place.isEmpty()) return;
  record.ground = pixelsOf(surface_, record.place);
  textPainter().draw(record, surface_);
  record.drawn = pixelsOf(surface_, record.place);
  observer_->textDrawn(std::move(record));
}

}  // namespace tavrelkin
