#pragma once

#include "runtime/core/base/Number.h"
#include "runtime/core/text/Text.h"

namespace tavrelkin {

class Window;

// Something that belongs to a window under a name: a visible control, a thread or a timer. Controls are plain members
// of their window and live as long as it does.
class Control {
 public:
  Control(const Control&) = delete;
  Control& operator=(const Control&) = delete;
  virtual ~Control() = default;

  const String& Name() const { return name_; }
  Window& ownerWindow() const { return owner_; }

  // The place in a set of controls that share handlers; 0 outside of one.
  Int32 Index = 0;

  // Raised once, before the window's own Open event.
  virtual void Event_Open() {}

 protected:
  // Enters the control in its window, in the order in which the window's Open events come.
  Control(Window& owner, String name);

 private:
  Window& owner_;
  String name_;
};

}  // namespace tavrelkin
