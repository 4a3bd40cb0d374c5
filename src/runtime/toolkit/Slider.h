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
  // Writing it raises nothing. What lies outside the range counts as the nearest bound.
  Property<Int32> Value;
  // How far an arrow key moves the value, and how far the page keys and a press beside the handle do. A press that is
  // held moves it once.
  Property<Int32> LineStep;
  Property<Int32> PageStep;
  // Whether ValueChanged comes at each step of a drag and with a press beside the handle, or once when the user lets
  // go.
  Property<bool> LiveScroll;

  // The user has changed the value.
  Event<void()> ValueChanged;

 private:
  void moved();
};

}  // namespace tavrelkin
