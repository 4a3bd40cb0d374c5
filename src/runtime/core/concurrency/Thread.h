#pragma once

#include "runtime/core/base/Event.h"
#include "runtime/core/concurrency/Control.h"

namespace tavrelkin {

// A cooperative thread of a window. The event loop and other threads run only while it yields.
class Thread : public Control {
 public:
  Thread(ControlOwner& owner, String name);

  // Part of a window's design. It has no effect: all threads get the same turns.
  Int32 Priority = 5;
  // Bytes; 0 is the default of 1 MiB. Read when the thread is started.
  Int32 StackSize = 0;

  // Starts the thread; its first turn comes when the event loop is idle. The thread keeps its window alive until it has
  // ended. Does nothing while the thread runs.
  void Run();

  // Ends the thread at its present place and unwinds its stack. Does nothing if it does not run.
  void Kill();

  bool IsRunning() const;

  // What the thread does.
  Event<void()> RunEvent;

 protected:
  virtual void Event_Run() { RunEvent(); }
};

}  // namespace tavrelkin
