#pragma once

#include "runtime/core/base/Property.h"
#include "runtime/core/drawing/Color.h"
#include "runtime/toolkit/RectControl.h"

namespace tavrelkin {

// A filled rectangle with a border: TopLeftColor on its upper and left edge, BottomRightColor on the other two.
class Rectangle : public RectControl {
 public:
  Rectangle(Window& owner, String name);

  Property<Color> FillColor;
  Property<Color> TopLeftColor;
  Property<Color> BottomRightColor;
  // Pixels.
  Property<Int32> BorderWidth;
};

// A straight line between two points of the window, both included. The points say where it is: Left, Top, Width and
// Height follow from them. What lies outside of the window doesn't show.
class Line : public RectControl {
 public:
  Line(Window& owner, String name);

  Property<Int32> X1;
  Property<Int32> Y1;
  Property<Int32> X2;
  Property<Int32> Y2;
  // Pixels, to the right of and below the points.
  Property<Int32> BorderWidth;
  Property<Color> LineColor;

  // Sets both points in one go.
  void setPoints(Int32 x1, Int32 y1, Int32 x2, Int32 y2);

 protected:
  void resized() override;

 private:
  void followPoints();
};

}  // namespace tavrelkin
