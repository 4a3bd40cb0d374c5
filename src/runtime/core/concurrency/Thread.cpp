#include "runtime/core/concurrency/Thread.h"

#include <algorithm>
#include <utility>

#include "runtime/core/concurrency/RuntimeBackgroundTask.h"
#include "runtime/core/scheduling/Delivery.h"
#include "runtime/core/scheduling/Scheduler.h"

namespace tavrelkin {

Thread::Thread(ControlOwner& owner, String name) : Control(owner, std::move(name)) {}

void Thread::Run() {
  const auto isSeen = [this] { return owner().isSeen(); };
  const auto body = [this] { guarded([this] { Event_Run(); }); };
  Scheduler::instance().start(*this, {.owner = Ref<Object>(&owner()),
                                      .isSeen = isSeen,
                                      .body = body,
                                      .stackSize = static_cast<std::size_t>(std::max(StackSize, 0))});
}

void Thread::Kill() {
  Scheduler::instance().kill(*this);
}

bool Thread::IsRunning() const {
  return Scheduler::instance().runs(*this);
}

void RuntimeBackgroundTask() {
  Scheduler::instance().yield();
}

}  // namespace tavrelkin
