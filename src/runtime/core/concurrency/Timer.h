#pragma once

#include <memory>

#include "runtime/core/base/Event.h"
#include "runtime/core/base/Property.h"
#include "runtime/core/concurrency/Control.h"
#include "runtime/desktop/Desktop.h"

namespace tavrelkin {

// Raises Action periodically, from the event loop.
class Timer : public Control {
 public:
  Timer(ControlOwner& owner, String name);
  ~Timer() override;

  // 2 turns the timer on; any other number turns it off. Writing 2 while it runs starts a new period.
  Property<Int32> Mode;

  // The time between two events, in milliseconds. Less than 1 counts as 1. A new value takes effect with the next
  // period.
  Int32 Period = 1000;

  Event<void()> Action;

 protected:
  virtual void Event_Action() { Action(); }

 private:
  void apply(Int32 mode);
  void ring();

  std::unique_ptr<Alarm> alarm_;
};

}  // namespace tavrelkin
