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

}  // namespace tavrelkin
