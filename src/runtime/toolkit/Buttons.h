#pragma once

#include "runtime/core/base/Event.h"
#include "runtime/core/base/Property.h"
#include "runtime/toolkit/RectControl.h"

namespace tavrelkin {

// A button with a caption. While it has the keyboard, the space bar and the Return key press it.
class PushButton : public RectControl {
 public:
  PushButton(Window& owner, String name);

  Property<String> Caption;

  // The user has pressed the button.
  Event<void()> Action;
};

// The little arrow that unfolds a part of a window: it points to the right, and down while Value is true.
// While it has the keyboard, the space bar and the Return key turn it.
class DisclosureTriangle : public RectControl {
 public:
  DisclosureTriangle(Window& owner, String name);

  // Writing it raises nothing.
  Property<bool> Value;

  // The user has turned the triangle; Value tells where it points now.
  Event<void()> Action;
};

}  // namespace tavrelkin
