#pragma once

#include <functional>
#include <string>
#include <type_traits>

#include "runtime/core/base/Exceptions.h"
#include "runtime/core/base/Ref.h"
#include "runtime/core/scheduling/Scheduler.h"

namespace tavrelkin {

// The one place where the program's code is entered from outside. Every call that the toolkit or the scheduler makes
// into a window, a control or the application goes through one of these.

// What happens on the first fault of the program, given in words: it is to tell the user and to end the program, in
// order, with exit status 1. It may be called on a thread, whose stack can't hold a dialog's loop. The toolkit sets it.
void onFault(std::function<void(const std::string&)> end);

// Calls what onFault() has set, once at most. No handler is entered from then on.
void reportFault(const RuntimeException& fault);

// The runtime has ended, and may start again.
void forgetFault();

// Prepares for a handler: what was read of the screen before is stale. False where the program is ending.
bool enterProgram();

// Calls `code` and catches what the runtime throws. Gives R{} after a fault.
template <class Code>
auto guarded(Code&& code) -> std::invoke_result_t<Code> {
  using Result = std::invoke_result_t<Code>;
  try {
    return code();
  } catch (const RuntimeException& fault) {
    reportFault(fault);
  }
  return Result();
}

// Calls a handler. Gives R{} where the program is ending or the handler fails.
template <class Code>
auto deliver(Code&& code) -> std::invoke_result_t<Code> {
  if (!enterProgram()) return std::invoke_result_t<Code>();
  const Scheduler::InHandler inHandler;
  return guarded(code);
}

// The same for a handler of a window or of one of its controls: the window, `owner`, outlives the call, whatever the
// handler closes.
template <class Code>
auto deliver(Object& owner, Code&& code) -> std::invoke_result_t<Code> {
  const Ref<Object> keep(&owner);
  return deliver(code);
}

}  // namespace tavrelkin
