#include "runtime/core/concurrency/Thread.h"

#include <utility>

#include "runtime/core/scheduling/Delivery.h"
#include "runtime/core/scheduling/Scheduler.h"
#include "runtime/toolkit/Window.h"

namespace tavrelkin {

Thread::Thread(Window& owner, String name) : Control(owner, std::move(name)) {}

void Thread::Run() {
  Scheduler::instance().start(*this, Ref<Window>(&ownerWindow()));
}

void Thread::Kill() {
  Scheduler::instance().kill(*this);
}

bool Thread::IsRunning() const {
  return Scheduler::instance().runs(*this);
}

void Thread::runGuarded() {
  guarded([this] { Event_Run(); });
}

void RuntimeBackgroundTask() {
  Scheduler::instance().yield();
}

}  // namespace tavrelkin
