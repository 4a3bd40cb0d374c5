#pragma once

#include <utility>
#include <vector>

#include "runtime/core/base/Number.h"
#include "runtime/core/base/Ref.h"
#include "runtime/core/text/Text.h"

namespace tavrelkin {

class Control;

// What controls belong to: a window.
class ControlOwner : public Object {
 public:
  // False while nothing of the owner is in sight, as when a window is minimised.
  virtual bool isSeen() const = 0;

 protected:
  // In the order in which they were made.
  const std::vector<Control*>& controls() const { return controls_; }

 private:
  friend class Control;

  std::vector<Control*> controls_;
};

// Something that belongs to a window under a name: a visible control, a thread or a timer. Controls are plain members
// of their window and live as long as it does.
class Control {
 public:
  Control(const Control&) = delete;
  Control& operator=(const Control&) = delete;
  virtual ~Control() = default;

  const String& Name() const { return name_; }
  ControlOwner& owner() const { return owner_; }

  // The place in a set of controls that share handlers; 0 outside of one.
  Int32 Index = 0;

  // Raised once, before the window's own Open event.
  virtual void Event_Open() {}

 protected:
  // Enters the control in its window, in the order in which the window's Open events come.
  Control(ControlOwner& owner, String name) : owner_(owner), name_(std::move(name)) { owner.controls_.push_back(this); }

 private:
  ControlOwner& owner_;
  String name_;
};

}  // namespace tavrelkin
