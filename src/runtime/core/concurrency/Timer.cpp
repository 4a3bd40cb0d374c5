#include "runtime/core/concurrency/Timer.h"

#include <algorithm>
#include <utility>

#include "runtime/core/scheduling/Delivery.h"

namespace tavrelkin {

namespace {
constexpr Int32 kRepeating = 2;
}

Timer::Timer(ControlOwner& owner, String name)
    : Control(owner, std::move(name)),
      Mode(0, [this](Int32 mode) { apply(mode); }),
      alarm_(desktop().newAlarm([this] { ring(); })) {}

Timer::~Timer() = default;

void Timer::apply(Int32 mode) {
  if (mode == kRepeating) {
    alarm_->set(std::chrono::milliseconds(std::max(Period, 1)));
  } else {
    alarm_->cancel();
  }
}

void Timer::ring() {
  apply(Mode);
  deliver(owner(), [this] { Event_Action(); });
}

}  // namespace tavrelkin
