#pragma once

#include <memory>

#include "runtime/core/base/Event.h"
#include "runtime/core/base/Property.h"
#include "runtime/core/concurrency/Control.h"
#include "runtime/desktop/Desktop.h"

namespace tavrelkin {

// Raises Action again and again, from the event loop.
class Timer : public Control {
 public:
  Timer(ControlOwner& owner, String name);
  ~Timer() override;

  // 2 is repeating, 0 off, as any other number is. Writing 2 while the timer runs starts the period afresh.
  Property<Int32> Mode;

  // Milliseconds, 1 at least; takes effect with the next period.
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
