#pragma once

#include <vector>

#include <QImage>

#include "runtime/core/drawing/TextPainter.h"

namespace tavrelkin {

// Enlarges a canvas for a screen with a scale factor: each of its pixels becomes a hard-edged block. At a fractional
// scale the edges of the blocks are rounded to the screen's pixels, so the sizes of two blocks differ by at most one
// pixel.
class Enlargement {
 public:
  // `scale` is the screen's pixels per pixel of the canvas, at least 1.
  explicit Enlargement(qreal scale) : scale_(scale) {}

  qreal scale() const { return scale_; }
  bool isWhole() const;  // whether the scale is a whole number

  // The first screen pixel of the block of pixel `i`, from the canvas's left or top edge. Both may be negative.
  int edge(int i) const;
  // The canvas's pixel whose block contains a screen pixel.
  int pixelAt(int onScreen) const;

  // The enlarged surface.
  QImage of(const Surface& surface) const;
  // The enlarged surface, with texts drawn on it in the screen's pixels, so that they are sharp.
  QImage of(const Surface& ground, const std::vector<DrawnText>& texts) const;

 private:
  qreal scale_;
};

}  // namespace tavrelkin
