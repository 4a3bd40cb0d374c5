#pragma once

#include "runtime/core/base/Event.h"
#include "runtime/core/concurrency/Control.h"

namespace tavrelkin {

// A cooperative thread of a window. The event loop and other threads run only while it yields.
class Thread : public Control {
 public:
  Thread(ControlOwner& owner, String name);

  // Has no effect: all threads get equal turns. Windows set it as part of their design.
  Int32 Priority = 5;
  // The size of the stack in bytes; 0 or less means the default of 1 MiB. A change takes effect with the next Run().
  Int32 StackSize = 0;

  // Starts the thread; its first turn comes when the event loop is idle. The thread keeps its window alive until it
  // ends. Does nothing while the thread runs.
  void Run();

  // Ends the thread at the point that it has reached, and unwinds its stack. Does nothing if the thread does not run.
  void Kill();

  bool IsRunning() const;

  // The work of the thread. The thread ends when the handler returns.
  Event<void()> RunEvent;

 protected:
  virtual void Event_Run() { RunEvent(); }
};

}  // namespace tavrelkin
