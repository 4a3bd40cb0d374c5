#pragma once

#include "runtime/core/base/Property.h"
#include "runtime/toolkit/RectControl.h"

namespace tavrelkin {

// A line of text with a border, which the user can edit. A press and the Tab key give it the keyboard focus. The
// shortcut of an enabled menu item still runs the command; the keys of a disabled item go to the field.
class TextField : public RectControl {
 public:
  TextField(Window& owner, String name);

  // The present contents. Editing changes it.
  Property<String> Text;
};

}  // namespace tavrelkin
