#pragma once

#include <utility>
#include <vector>

#include "runtime/core/base/Number.h"
#include "runtime/core/base/Ref.h"
#include "runtime/core/text/Text.h"

namespace tavrelkin {

class Control;

// The owner of controls: a window.
class ControlOwner : public Object {
 public:
  // False while no part of the owner is visible, for example while a window is minimised.
  virtual bool isSeen() const = 0;

 protected:
  // The controls, in the order in which they were constructed.
  const std::vector<Control*>& controls() const { return controls_; }

 private:
  friend class Control;

  std::vector<Control*> controls_;
};

// A named part of a window: a visible control, a thread or a timer. Controls are plain members of their window, so they
// live as long as it does.
class Control {
 public:
  Control(const Control&) = delete;
  Control& operator=(const Control&) = delete;
  virtual ~Control() = default;

  const String& Name() const { return name_; }
  ControlOwner& owner() const { return owner_; }

  // The control's index in a set of controls that share handlers, from 0. 0 for a control that is in no set.
  Int32 Index = 0;

  // Called once, before the window's own Open event.
  virtual void Event_Open() {}

 protected:
  // Adds the control to its owner. Open events come in the order of these calls.
  Control(ControlOwner& owner, String name) : owner_(owner), name_(std::move(name)) { owner.controls_.push_back(this); }

 private:
  ControlOwner& owner_;
  String name_;
};

}  // namespace tavrelkin
