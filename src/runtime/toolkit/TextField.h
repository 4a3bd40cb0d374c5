#pragma once

#include "runtime/core/base/Property.h"
#include "runtime/toolkit/RectControl.h"

namespace tavrelkin {

// A line of text that the user can edit, in a border. A press and the tabulator key give it the keyboard. The keys of a
// command that somebody answers go to the command all the same; those of a disabled one are left to the field.
class TextField : public RectControl {
 public:
  TextField(Window& owner, String name);

  // What stands in the field now.
  Property<String> Text;
};

}  // namespace tavrelkin
