#pragma once

#include <QFont>

#include "runtime/core/drawing/TextPainter.h"
#include "runtime/core/text/Text.h"

class QPainter;

namespace tavrelkin {

// The font of a family, of a height in pixels. "System" is the desktop's own family.
QFont fontFor(const String& family, Int32 pixels, bool bold);

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
