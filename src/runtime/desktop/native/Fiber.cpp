#include "runtime/desktop/Fiber.h"

#include <cassert>
#include <utility>

#include <boost/context/fiber.hpp>
#include <boost/context/protected_fixedsize_stack.hpp>

#if defined(__SANITIZE_ADDRESS__)
#include <sanitizer/asan_interface.h>
#include <sanitizer/common_interface_defs.h>
#endif

namespace tavrelkin {

namespace {

namespace context = boost::context;

// suspend() throws this in a fiber that must end. It is not derived from std::exception, so that no handler takes it
// for a fault.
struct Killed {};

// Tells the address sanitizer which stack is in use, as it requires before and after each switch.
struct StackSwitch {
#if defined(__SANITIZE_ADDRESS__)
  static void leave(void** fakeStack, const void* bottom, std::size_t size) {
    __sanitizer_start_switch_fiber(fakeStack, bottom, size);
  }
  static void arrive(void* fakeStack, const void** cameFrom, std::size_t* size) {
    __sanitizer_finish_switch_fiber(fakeStack, cameFrom, size);
  }
  // The outermost frames never return, so the sanitizer's marks for them would stay and apply to the next mapping at
  // this address.
  static void forget(const void* bottom, std::size_t size) {
    __asan_unpoison_memory_region(bottom, size);
  }
#else
  static void leave(void**, const void*, std::size_t) {}
  static void arrive(void*, const void**, std::size_t*) {}
  static void forget(const void*, std::size_t) {}
#endif
};

}  // namespace

struct Fiber::State {
  std::function<void()> body;
  context::stack_context stack;
  context::fiber self;    // continues the body, while the body is suspended
  context::fiber caller;  // continues the caller, while the body runs
  const void* callerStack = nullptr;
  std::size_t callerStackSize = 0;
  bool killed = false;
  bool ended = false;
  State* outer = nullptr;  // the fiber that resumed this one, or null

  inline static State* running = nullptr;

  const void* bottom() const { return static_cast<const char*>(stack.sp) - stack.size; }

  context::fiber run(context::fiber&& from) {
    caller = std::move(from);
    StackSwitch::arrive(nullptr, &callerStack, &callerStackSize);
    if (!killed) {
      try {
        body();
      } catch (const Killed&) {
        killed = true;
      }
    }
    ended = true;
    body = nullptr;
    StackSwitch::leave(nullptr, callerStack, callerStackSize);
    return std::move(caller);
  }
};

Fiber::Fiber(std::function<void()> body, std::size_t stackSize) : state_(std::make_unique<State>()) {
  context::protected_fixedsize_stack allocator(stackSize == 0 ? kDefaultStackSize : stackSize);
  state_->body = std::move(body);
  state_->stack = allocator.allocate();
  const context::preallocated place(state_->stack.sp, state_->stack.size, state_->stack);
  state_->self = context::fiber(std::allocator_arg, place, allocator,
                                [state = state_.get()](context::fiber&& from) { return state->run(std::move(from)); });
}

Fiber::~Fiber() {
  assert(State::running != state_.get());
  state_->killed = true;
  resume();
}

bool Fiber::finished() const {
  return state_->ended;
}

void Fiber::resume() {
  State& state = *state_;
  if (state.ended) return;
  state.outer = std::exchange(State::running, &state);
  void* fakeStack = nullptr;
  StackSwitch::leave(&fakeStack, state.bottom(), state.stack.size);
  state.self = std::move(state.self).resume();
  StackSwitch::arrive(fakeStack, nullptr, nullptr);
  State::running = state.outer;
  if (state.ended) StackSwitch::forget(state.bottom(), state.stack.size);
}

void Fiber::kill() {
  state_->killed = true;
  if (State::running == state_.get()) throw Killed();
  resume();
}

void Fiber::suspend() {
  assert(State::running);
  State& state = *State::running;
  if (state.killed) return;
  void* fakeStack = nullptr;
  StackSwitch::leave(&fakeStack, state.callerStack, state.callerStackSize);
  state.caller = std::move(state.caller).resume();
  StackSwitch::arrive(fakeStack, &state.callerStack, &state.callerStackSize);
  if (state.killed) throw Killed();
}

}  // namespace tavrelkin
