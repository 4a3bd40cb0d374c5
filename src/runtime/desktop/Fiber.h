#pragma once

#include <cstddef>
#include <functional>
#include <memory>

namespace tavrelkin {

// A function with its own stack, which can be suspended and resumed. All fibers run on the one OS thread: no other code
// runs between resume() and the next suspend().
class Fiber {
 public:
  static constexpr std::size_t kDefaultStackSize = 1 << 20;

  // `body` starts at the first resume(). `stackSize` is in bytes; 0 means kDefaultStackSize. `body` must catch all
  // exceptions except the one that suspend() throws.
  explicit Fiber(std::function<void()> body, std::size_t stackSize = 0);
  Fiber(const Fiber&) = delete;
  Fiber& operator=(const Fiber&) = delete;

  // Kills the fiber if it hasn't finished.
  ~Fiber();

  // Runs the body until it suspends itself or ends. Does nothing once it has ended.
  void resume();

  bool finished() const;

  // Ends the body where it is and unwinds its stack. If the body is suspended, it has ended when kill() returns. If a
  // fiber kills itself, kill() does not return.
  void kill();

  // Suspends the running body; returns when it is resumed. In a killed body it returns at once, since destructors may
  // call it while the stack unwinds. Only a body may call it.
  static void suspend();

 private:
  struct State;
  std::unique_ptr<State> state_;
};

}  // namespace tavrelkin
