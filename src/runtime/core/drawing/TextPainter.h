#pragma once

#include <memory>

#include "runtime/core/drawing/DrawnText.h"

namespace tavrelkin {

// Draws texts on surfaces. It has the fonts, which the core has not, and so the toolkit installs it. Of a DrawnText it
// reads what to draw: the text, its position, size and colour.
class TextPainter {
 public:
  TextPainter() = default;
  TextPainter(const TextPainter&) = delete;
  TextPainter& operator=(const TextPainter&) = delete;
  virtual ~TextPainter() = default;

  // How far texts of a size, in pixels, reach above their baseline.
  virtual Int32 ascent(Int32 size) const = 0;

  // The pixels of the surface that draw() may change. Empty where the text lies off the surface.
  virtual Block placeOf(const DrawnText& text, const Surface& surface) const = 0;

  // Draws the text, cut off at the edges of the surface, which has one pixel at least.
  virtual void draw(const DrawnText& text, Surface& surface) const = 0;
};

// The painter in use. It must be installed before any text is drawn or measured.
const TextPainter& textPainter();
void installTextPainter(std::unique_ptr<TextPainter> painter);

}  // namespace tavrelkin
