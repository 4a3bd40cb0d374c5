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
  const DrawnText drawn{.text = text, .left = x, .baseline = y, .size = TextSize, .color = ForeColor};
  if (observer_) observer_->willDrawText(drawn);
  textPainter().draw(drawn, surface_);
}

}  // namespace tavrelkin
