#pragma once

#include <QFont>

#include "runtime/core/drawing/TextPainter.h"
#include "runtime/core/text/Text.h"

class QPainter;

namespace tavrelkin {

// The font of a family, with a height in pixels; a height below 1 counts as 1. "System" is the desktop's own family.
QFont fontFor(const String& family, Int32 pixels, bool bold);

// Draws the program's texts with Qt, in the desktop's own font family. Everything else on surfaces is drawn by
// Graphics.
class FontPainter final : public TextPainter {
 public:
  Int32 ascent(Int32 size) const override;
  void draw(const DrawnText& text, Surface& surface) const override;

  // Draws the text with a painter of Qt, in the painter's coordinates.
  static void draw(const DrawnText& text, QPainter& painter);
};

}  // namespace tavrelkin
