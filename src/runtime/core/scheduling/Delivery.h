#pragma once

#include <functional>
#include <string>
#include <type_traits>

#include "runtime/core/base/Exceptions.h"
#include "runtime/core/base/Ref.h"
#include "runtime/core/scheduling/Scheduler.h"

namespace tavrelkin {

// The only entry into the program's code. All calls from the toolkit or the scheduler to a window, a control or the
// application go through the functions of this header.

// Sets the function that reportFault() calls with the text of the fault. `end` must show the text to the user and end
// the program with exit status 1. It must do so later, from the event loop: it may be called on a thread, whose stack
// is too small for a dialog. The toolkit sets it.
void onFault(std::function<void(const std::string&)> end);

// Passes the first fault to the function that onFault() has set. Later faults are ignored. After a fault no handler is
// called.
void reportFault(const RuntimeException& fault);

// Allows handlers again, for a runtime that starts after another one has ended.
void forgetFault();

// Prepares for a handler: marks earlier reads of the screen as stale. False if the program is ending.
bool enterProgram();

// Calls `code` and catches RuntimeException. Returns R{} after a fault.
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

// Calls a handler. Returns R{} if the program is ending or the handler fails.
template <class Code>
auto deliver(Code&& code) -> std::invoke_result_t<Code> {
  if (!enterProgram()) return std::invoke_result_t<Code>();
  const Scheduler::InHandler inHandler;
  return guarded(code);
}

// The same for a handler of a window or of one of its controls. The window, `owner`, stays alive during the call, even
// if the handler closes it.
template <class Code>
auto deliver(Object& owner, Code&& code) -> std::invoke_result_t<Code> {
  const Ref<Object> keep(&owner);
  return deliver(code);
}

}  // namespace tavrelkin
