#pragma once

#include <cstddef>
#include <functional>
#include <memory>

namespace tavrelkin {

// A function that runs on a stack of its own and can be left in the middle and taken up again. All of it happens on the
// one OS thread: between resume() and the next suspend(), nothing else runs.
class Fiber {
 public:
  static constexpr std::size_t kDefaultStackSize = 1 << 20;

  // Prepares `body`; it starts at the first resume(). `stackSize` is in bytes, 0 means the default. What `body` throws
  // must not leave it, but for what suspend() throws.
  explicit Fiber(std::function<void()> body, std::size_t stackSize = 0);
  Fiber(const Fiber&) = delete;
  Fiber& operator=(const Fiber&) = delete;

  // Kills the fiber if it hasn't finished.
  ~Fiber();

  // Runs the body until it suspends itself or ends. Does nothing once it has ended.
  void resume();

  bool finished() const;

  // Ends the body where it stands and unwinds its stack. A suspended one has ended when this returns; a fiber that
  // kills itself does not return from here.
  void kill();

  // Leaves the running body; returns when it is resumed. Returns at once in a body that has been killed, since its
  // destructors may come here while its stack unwinds. May only be called from within a body.
  static void suspend();

 private:
  struct State;
  std::unique_ptr<State> state_;
};

}  // namespace tavrelkin
