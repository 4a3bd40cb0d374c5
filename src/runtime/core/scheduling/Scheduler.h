#pragma once

#include <chrono>
#include <cstddef>
#include <functional>
#include <memory>
#include <optional>
#include <vector>

#include "runtime/core/base/Ref.h"
#include "runtime/core/scheduling/Fiber.h"
#include "runtime/core/scheduling/ScreenWatch.h"
#include "runtime/desktop/Desktop.h"

namespace tavrelkin {

class Thread;

// Hands out turns to the threads of the program. The event loop gives them when it has nothing else to do, the main
// thread at its own yields when it has been at work for long. A turn ends when its time is over or when the thread has
// drawn on a canvas: a thread that draws faster than the display shows would only burn power. It goes on when the next
// frame is due, or at once when the pointer has moved, so that a preview neither lags behind the hand nor misses a
// screen that changes under a still pointer. Where the desktop tells of each change on the screen, or where nobody sees
// the thread's window, it doesn't wait for the frame, but for such a change or for the window to be seen again.
class Scheduler {
 public:
  using TimePoint = Desktop::TimePoint;

  // How long a thread, or the main thread between two looks at the others, keeps the processor.
  static constexpr std::chrono::milliseconds kTurn{2};
  // How close together two turns may be that movements of the pointer have asked for.
  static constexpr std::chrono::milliseconds kPointerGap{4};

  // The one scheduler, made at first use with the desktop that is installed then. shutDown() ends all threads and lets
  // it go.
  static Scheduler& instance();
  static void shutDown();

  Scheduler();
  Scheduler(const Scheduler&) = delete;
  Scheduler& operator=(const Scheduler&) = delete;
  ~Scheduler();

  // What a thread runs, and for whom.
  struct Work {
    Ref<Object> owner;             // kept alive until the thread has ended
    std::function<bool()> isSeen;  // whether anything of the owner is in sight
    std::function<void()> body;    // what it throws must not leave it
    std::size_t stackSize = 0;     // bytes; 0 is the default
  };

  // Starts a thread. Does nothing while it runs.
  void start(const Thread& thread, Work work);
  void kill(const Thread& thread);
  bool runs(const Thread& thread) const;

  // The yield: see RuntimeBackgroundTask.
  void yield() {
    if (++yields_ % kYieldsPerLook == 0 || drew_) lookAtClock();
  }

  // A canvas is being drawn on, by whoever runs.
  void canvasDrawn() { drew_ = current_ != nullptr; }

  // A handler is entered from the event loop. It may change what a thread is to draw, so that each gets a turn soon.
  void beginMainTurn();

  // The thread that runs gives way until the desktop tells of a change of the screen or of its state. False, and no
  // waiting, outside of a thread.
  bool waitForScreen();

  // A window has come into sight, or gone out of it.
  void windowSeen();

  // Held while the toolkit runs a handler. A thread may have made it do so, by showing a control for instance; it gives
  // way only afterwards, so that no half-done work of the toolkit waits on its stack, or is unwound.
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
    bool paced = false;       // it has drawn and waits for the next frame or a movement of the pointer
    bool forPointer = false;  // the turn it waits for was asked for by a movement
    bool waits = false;       // it gave way in waitForScreen()
    bool missed = false;      // the screen has changed since it began what it is about to draw
  };

  // When a thread is due that waits for something else than the time.
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
  int handlers_ = 0;  // at work in this turn, one within the other
  unsigned yields_ = 0;
  TimePoint turnBegan_{};
  TimePoint mainTurnBegan_{};
  std::optional<ScreenWatch> watch_;
};

}  // namespace tavrelkin
