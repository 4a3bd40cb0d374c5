#include "fakes/FakeDesktop.h"

#include <algorithm>

namespace tavrelkin {

class FakeDesktop::FakeAlarm : public Alarm {
 public:
  FakeAlarm(FakeDesktop& desktop, std::function<void()> ring) : desktop_(desktop), ring_(std::move(ring)) {
    desktop_.alarms_.push_back(this);
  }
  ~FakeAlarm() override { std::erase(desktop_.alarms_, this); }

  void set(std::chrono::nanoseconds delay) override {
    due = desktop_.now_ + std::max(delay, std::chrono::nanoseconds(0));
  }
  void cancel() override { due.reset(); }

  void ring() {
    due.reset();
    ring_();
  }

  std::optional<TimePoint> due;

 private:
  FakeDesktop& desktop_;
  std::function<void()> ring_;
};

void FakeDesktop::movePointer(ScreenPoint to) {
  pointerAt = to;
  changeScreen();
}

void FakeDesktop::changeScreen() {
  if (changed_) changed_();
}

std::unique_ptr<Alarm> FakeDesktop::newAlarm(std::function<void()> ring) {
  return std::make_unique<FakeAlarm>(*this, std::move(ring));
}

FakeDesktop::FakeAlarm* FakeDesktop::next(TimePoint until) const {
  FakeAlarm* first = nullptr;
  for (FakeAlarm* alarm : alarms_) {
    if (alarm->due && *alarm->due <= until && (!first || *alarm->due < *first->due)) first = alarm;
  }
  return first;
}

void FakeDesktop::advance(std::chrono::nanoseconds by) {
  const TimePoint end = now_ + by;
  if (by.count() == 0) {
    // An alarm that is set during this loop waits for the next call, even if it is due.
    const std::vector<FakeAlarm*> all = alarms_;
    for (FakeAlarm* alarm : all) {
      const bool alive = std::find(alarms_.begin(), alarms_.end(), alarm) != alarms_.end();
      if (alive && alarm->due && *alarm->due <= end) alarm->ring();
    }
    return;
  }
  while (FakeAlarm* alarm = next(end)) {
    now_ = std::max(now_, *alarm->due);
    alarm->ring();
  }
  now_ = std::max(now_, end);
}

std::optional<std::chrono::nanoseconds> FakeDesktop::nextAlarm() const {
  const FakeAlarm* first = next(TimePoint::max());
  if (!first) return std::nullopt;
  return *first->due - now_;
}

}  // namespace tavrelkin
