#pragma once

#include "runtime/core/concurrency/RuntimeBackgroundTask.h"
#include "runtime/core/concurrency/Thread.h"
#include "runtime/core/scheduling/Scheduler.h"
#include "runtime/toolkit/Canvas.h"
#include "runtime/toolkit/Window.h"

namespace tavrelkin {

// Yields so often that the work can take several turns.
inline void work() {
  for (int i = 0; i < 1000; ++i)
    RuntimeBackgroundTask();
}

// A window with two threads, which may draw.
class Worker : public Window {
 public:
  Worker() : Window({.title = "Worker", .width = 100, .height = 100}) {
    canvas.place(0, 0, 10, 10);
    canvas.Visible = false;
  }
  void draw() { canvas.Graphics().Pixel(0, 0, kBlack); }

  Canvas canvas{*this, "canvas"};
  Thread thread{*this, "thread"};
  Thread other{*this, "other"};
};

}  // namespace tavrelkin
