#pragma once

#include <memory>

#include "runtime/core/drawing/Color.h"
#include "runtime/core/drawing/Surface.h"
#include "runtime/core/text/Text.h"

namespace tavrelkin {

// A text of one line, and how to draw it.
struct DrawnText {
  String text;
  Int32 left = 0;
  Int32 baseline = 0;
  Int32 size = 0;  // the height in pixels
  Color color;
};

// Draws texts on surfaces. The core has no fonts, so the toolkit installs a painter.
class TextPainter {
 public:
  TextPainter() = default;
  TextPainter(const TextPainter&) = delete;
  TextPainter& operator=(const TextPainter&) = delete;
  virtual ~TextPainter() = default;

  // How many pixels texts reach above their baseline. `size` is their height in pixels.
  virtual Int32 ascent(Int32 size) const = 0;

  // Draws the text, clipped to the surface. The surface must have at least one pixel.
  virtual void draw(const DrawnText& text, Surface& surface) const = 0;
};

// The installed painter. A painter must be installed before any text is drawn or measured.
const TextPainter& textPainter();
void installTextPainter(std::unique_ptr<TextPainter> painter);

}  // namespace tavrelkin
