#pragma once

#include "runtime/core/base/Event.h"
#include "runtime/core/base/Property.h"
#include "runtime/toolkit/RectControl.h"

namespace tavrelkin {

// A horizontal slider over whole numbers.
class Slider : public RectControl {
 public:
  Slider(Window& owner, String name);

  Property<Int32> Minimum;
  Property<Int32> Maximum;
  // Writing it raises no event. A value out of range becomes the nearest bound.
  Property<Int32> Value;
  // LineStep is how far an arrow key moves the value, PageStep how far the page keys and a press beside the handle move
  // it. A press that is held moves it once.
  Property<Int32> LineStep;
  Property<Int32> PageStep;
  // True: ValueChanged comes at each step of a drag, and with a press beside the handle. False: it comes once, when the
  // button is released.
  Property<bool> LiveScroll;

  // The user has changed the value.
  Event<void()> ValueChanged;

 private:
  void moved();
};

}  // namespace tavrelkin
