#pragma once

#include "runtime/core/drawing/TextPainter.h"

class QPainter;

namespace tavrelkin {

// Draws texts in the desktop's own family, with the toolkit's fonts. Text is the one thing that the toolkit draws on
// our surfaces.
class FontPainter final : public TextPainter {
 public:
  Int32 ascent(Int32 size) const override;
  void draw(const DrawnText& text, Surface& surface) const override;

  // Draws the text by a painter of the toolkit's.
  static void draw(const DrawnText& text, QPainter& painter);
};

}  // namespace tavrelkin
