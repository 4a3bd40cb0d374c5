#pragma once

#include <cstddef>
#include <functional>
#include <memory>

namespace tavrelkin {

// A function with a stack of its own, which can be suspended and resumed. All fibers run on the one OS thread: nothing
// else runs between resume() and the next suspend().
class Fiber {
 public:
  static constexpr std::size_t kDefaultStackSize = 1 << 20;

  // `body` starts at the first resume(). `stackSize` is in bytes; 0 is the default. `body` must catch all exceptions
  // but the one that suspend() throws.
  explicit Fiber(std::function<void()> body, std::size_t stackSize = 0);
  Fiber(const Fiber&) = delete;
  Fiber& operator=(const Fiber&) = delete;

  // Kills the fiber if it hasn't finished.
  ~Fiber();

  // Runs the body until it suspends itself or ends. Does nothing once it has ended.
  void resume();

  bool finished() const;

  // Ends the body at its present place and unwinds its stack. A suspended body has ended when kill() returns. A fiber
  // that kills itself does not return from kill().
  void kill();

  // Suspends the running body, and returns when it is resumed. Returns at once in a killed body, whose destructors may
  // call it while the stack unwinds. Call it only within a body.
  static void suspend();

 private:
  struct State;
  std::unique_ptr<State> state_;
};

}  // namespace tavrelkin
