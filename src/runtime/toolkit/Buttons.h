#pragma once

#include "runtime/core/base/Event.h"
#include "runtime/core/base/Property.h"
#include "runtime/toolkit/RectControl.h"

namespace tavrelkin {

// A button with a caption. While it has the keyboard focus, the space bar, Return and Enter press it.
class PushButton : public RectControl {
 public:
  PushButton(Window& owner, String name);

  Property<String> Caption;

  // The user has pressed the button.
  Event<void()> Action;
};

// A small arrow that unfolds a part of a window. It points down while Value is true, else to the right. While it has
// the keyboard focus, the space bar, Return and Enter turn it.
class DisclosureTriangle : public RectControl {
 public:
  DisclosureTriangle(Window& owner, String name);

  // Writing it raises no event.
  Property<bool> Value;

  // The user has turned the triangle. Value is already the new one.
  Event<void()> Action;
};

}  // namespace tavrelkin
