#pragma once

#include <chrono>
#include <cstddef>
#include <functional>
#include <memory>
#include <optional>
#include <vector>

#include "runtime/core/base/Ref.h"
#include "runtime/core/scheduling/ScreenWatch.h"
#include "runtime/desktop/Desktop.h"
#include "runtime/desktop/Fiber.h"

namespace tavrelkin {

class Thread;

// Gives turns to the threads of the program. The event loop gives a turn when it is idle. The main thread gives one at
// its own yields when it has worked for long.
//
// A turn ends when its time is over, or when the thread has drawn on a canvas: drawing faster than the display shows
// would only burn power. The next turn comes when the next frame is due, and at once when the pointer has moved. So a
// preview does not lag behind the pointer, and follows a screen that changes under a pointer at rest.
//
// In two cases a thread does not wait for the frame. If the desktop reports each change of the screen, the thread waits
// for such a change. If its window is not visible, the thread waits until the window is visible again.
class Scheduler {
 public:
  using TimePoint = Desktop::TimePoint;

  // The length of a thread's turn. Also the time that the main thread works before it gives another thread a turn.
  static constexpr std::chrono::milliseconds kTurn{2};
  // The shortest time between two turns that movements of the pointer have caused.
  static constexpr std::chrono::milliseconds kPointerGap{4};

  // The only scheduler. The first call of instance() makes it, for the desktop that is installed at that time.
  // shutDown() ends all threads and destroys it.
  static Scheduler& instance();
  static void shutDown();

  Scheduler();
  Scheduler(const Scheduler&) = delete;
  Scheduler& operator=(const Scheduler&) = delete;
  ~Scheduler();

  // What a thread runs.
  struct Work {
    Ref<Object> owner;             // kept alive until the thread has ended
    std::function<bool()> isSeen;  // whether any part of the owner is visible
    std::function<void()> body;    // must not throw
    std::size_t stackSize = 0;     // bytes; 0 is the default
  };

  // start() and kill() start and end a thread. start() does nothing if the thread runs; kill() does nothing if it does
  // not.
  void start(const Thread& thread, Work work);
  void kill(const Thread& thread);
  bool runs(const Thread& thread) const;

  // The yield: see RuntimeBackgroundTask.
  void yield() {
    if (++yields_ % kYieldsPerLook == 0 || drew_) lookAtClock();
  }

  // Call this when a canvas is drawn on. The turn of the thread that runs, if any, ends at its next yield.
  void canvasDrawn() { drew_ = current_ != nullptr; }

  // Call this when a handler is entered from the event loop. The handler may change what a thread draws, so each thread
  // that waits for a change gets a turn soon.
  void beginMainTurn();

  // Suspends the running thread until the desktop reports a change of the screen or of its state. Outside of a thread
  // it returns false at once.
  bool waitForScreen();

  // Call this when a window has become visible or invisible.
  void windowSeen();

  // An object of this class lives while a handler runs that the toolkit has called. A thread can cause such a call, for
  // instance by showing a control. The thread is not suspended during the call, since its stack holds unfinished work
  // of the toolkit.
  class InHandler {
   public:
    InHandler() { ++instance().handlers_; }
    InHandler(const InHandler&) = delete;
    InHandler& operator=(const InHandler&) = delete;
    ~InHandler() { --instance().handlers_; }
  };

 private:
  static constexpr unsigned kYieldsPerLook = 32;

  struct Entry {
    const Thread* thread = nullptr;
    Ref<Object> owner;
    std::function<bool()> isSeen;
    std::unique_ptr<Fiber> fiber;
    TimePoint due{};
    TimePoint lastPointerTurn{};
    bool paced = false;       // has drawn; waits for the next frame, or for a change
    bool forPointer = false;  // a movement of the pointer has caused the turn that is due
    bool waits = false;       // is suspended in waitForScreen()
    bool missed = false;      // the screen has changed while it was in the middle of its work
  };

  // The due time of a thread that waits for a change.
  static constexpr TimePoint kNotByTime = TimePoint::max();

  void lookAtClock();
  void runDueThread();
  void runTurn(Entry& entry);
  void planNextTurn(Entry& entry);
  void screenChanged();
  void hasten(Entry& entry, TimePoint due);
  void watchWhileSeen();
  void setAlarm();
  Entry* earliest();
  void remove(const Thread& thread);

  std::vector<std::unique_ptr<Entry>> entries_;
  std::unique_ptr<Alarm> alarm_;
  Entry* current_ = nullptr;
  bool drew_ = false;
  int handlers_ = 0;  // nesting depth of the handlers that run in this turn
  unsigned yields_ = 0;
  TimePoint turnBegan_{};
  TimePoint mainTurnBegan_{};
  std::optional<ScreenWatch> watch_;
};

}  // namespace tavrelkin
