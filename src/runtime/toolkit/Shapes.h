#pragma once

#include "runtime/core/base/Property.h"
#include "runtime/core/drawing/Color.h"
#include "runtime/toolkit/RectControl.h"

namespace tavrelkin {

// A filled rectangle with a border: TopLeftColor at the top and left, BottomRightColor at the bottom and right.
class Rectangle : public RectControl {
 public:
  Rectangle(Window& owner, String name);

  Property<Color> FillColor;
  Property<Color> TopLeftColor;
  Property<Color> BottomRightColor;
  // The width of the border in pixels.
  Property<Int32> BorderWidth;
};

// A straight line between two points of the window, both included, in pixels of the content. Writing a point sets Left,
// Top, Width and Height. The line is clipped to the window.
class Line : public RectControl {
 public:
  Line(Window& owner, String name);

  Property<Int32> X1;
  Property<Int32> Y1;
  Property<Int32> X2;
  Property<Int32> Y2;
  // The width of the line in pixels. It extends to the right of the points and below them.
  Property<Int32> BorderWidth;
  Property<Color> LineColor;

  // Sets both points at once.
  void setPoints(Int32 x1, Int32 y1, Int32 x2, Int32 y2);

 protected:
  void resized() override;

 private:
  void followPoints();
};

}  // namespace tavrelkin
