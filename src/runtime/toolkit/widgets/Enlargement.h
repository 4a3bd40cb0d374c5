#pragma once

#include <vector>

#include <QImage>

#include "runtime/core/drawing/TextPainter.h"

namespace tavrelkin {

// How a canvas shows on a screen with more pixels than it has itself: each of its pixels as a hard-edged block. Where
// the scale is no whole number, each edge between two of them lies at the screen's nearest, so that two blocks differ
// by one pixel at the most.
class Enlargement {
 public:
  // `scale` is at least 1.
  explicit Enlargement(qreal scale) : scale_(scale) {}

  qreal scale() const { return scale_; }
  bool isWhole() const;  // as a number

  // The first pixel of the screen that shows pixel `i`, counted from the canvas's left or top edge. May be negative.
  int edge(int i) const;
  // The pixel whose block a pixel of the screen belongs to.
  int pixelAt(int onScreen) const;

  // The surface at the screen's size.
  QImage of(const Surface& surface) const;
  // The same with texts on it, which are drawn in the screen's pixels and so are sharp.
  QImage of(const Surface& ground, const std::vector<DrawnText>& texts) const;

 private:
  qreal scale_;
};

}  // namespace tavrelkin
