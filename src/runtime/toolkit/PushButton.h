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

}  // namespace tavrelkin
