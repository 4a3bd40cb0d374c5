#include "runtime/core/scheduling/Scheduler.h"

#include <algorithm>
#include <utility>

namespace tavrelkin {

namespace {

std::unique_ptr<Scheduler> installed;

auto isFor(const Thread& thread) {
  return [&thread](const auto& entry) { return entry->thread == &thread; };
}

}  // namespace

Scheduler& Scheduler::instance() {
  if (!installed) installed = std::make_unique<Scheduler>();
  return *installed;
}

// Ends the threads before it destroys the scheduler: the destructors on their stacks may still yield or draw.
void Scheduler::shutDown() {
  while (installed && !installed->entries_.empty())
    installed->kill(*installed->entries_.back()->thread);
  installed.reset();
}

Scheduler::Scheduler() : alarm_(desktop().newAlarm([this] { runDueThread(); })) {}

Scheduler::~Scheduler() = default;

void Scheduler::start(const Thread& thread, Work work) {
  if (runs(thread)) return;
  auto entry = std::make_unique<Entry>();
  entry->thread = &thread;
  entry->owner = std::move(work.owner);
  entry->isSeen = std::move(work.isSeen);
  entry->fiber = std::make_unique<Fiber>(std::move(work.body), work.stackSize);
  entry->due = desktop().now();
  entries_.push_back(std::move(entry));
  watchWhileSeen();
  setAlarm();
}

void Scheduler::kill(const Thread& thread) {
  const auto found = std::find_if(entries_.begin(), entries_.end(), isFor(thread));
  if (found == entries_.end()) return;
  // The destructors on its stack run as in a turn of the thread, so that a yield there is not taken for the main
  // thread's.
  Entry& entry = **found;
  Entry* const outer = std::exchange(current_, &entry);
  entry.fiber->kill();
  current_ = outer;
  remove(thread);
}

bool Scheduler::runs(const Thread& thread) const {
  return std::any_of(entries_.begin(), entries_.end(), isFor(thread));
}

void Scheduler::beginMainTurn() {
  mainTurnBegan_ = desktop().now();
  for (const auto& entry : entries_)
    if (entry->due == kNotByTime && !entry->waits) hasten(*entry, mainTurnBegan_ + desktop().frameInterval());
}

bool Scheduler::waitForScreen() {
  if (!current_ || handlers_ > 0) return false;
  current_->waits = true;
  Fiber::suspend();
  return true;
}

void Scheduler::windowSeen() {
  watchWhileSeen();
  screenChanged();
}

void Scheduler::lookAtClock() {
  const TimePoint now = desktop().now();
  if (current_) {
    if (handlers_ == 0 && (drew_ || now - turnBegan_ >= kTurn)) Fiber::suspend();
  } else if (now - mainTurnBegan_ >= kTurn) {
    runDueThread();
    mainTurnBegan_ = desktop().now();
  }
}

void Scheduler::runDueThread() {
  Entry* next = earliest();
  if (next && next->due <= desktop().now()) runTurn(*next);
  setAlarm();
}

void Scheduler::runTurn(Entry& entry) {
  desktop().screenReader().beginTurn();
  turnBegan_ = desktop().now();
  current_ = &entry;
  drew_ = false;
  const int outerHandlers = std::exchange(handlers_, 0);
  entry.waits = false;
  entry.fiber->resume();
  handlers_ = outerHandlers;
  entry.paced = std::exchange(drew_, false);
  current_ = nullptr;
  desktop().screenReader().beginTurn();
  if (entry.fiber->finished()) {
    remove(*entry.thread);
  } else {
    planNextTurn(entry);
  }
}

void Scheduler::planNextTurn(Entry& entry) {
  if (std::exchange(entry.forPointer, false)) entry.lastPointerTurn = turnBegan_;
  if (!entry.paced && !entry.waits) {
    entry.due = desktop().now();
    return;
  }
  const bool isSeen = entry.isSeen();
  if (!isSeen) watchWhileSeen();
  const bool looksAgain = std::exchange(entry.missed, false) && isSeen && !entry.waits;
  if (entry.waits || !isSeen || desktop().screenReader().tellsEachChange()) {
    entry.due = looksAgain ? turnBegan_ + kPointerGap : kNotByTime;
    return;
  }
  const auto frame = desktop().frameInterval();
  if (entry.lastPointerTurn == turnBegan_) {
    // While the pointer moves, its movements set the pace. The turn for the frame is delayed; otherwise each movement
    // would be followed by a second turn.
    entry.due = turnBegan_ + frame * 5 / 4;
    return;
  }
  // The next turn is one frame after this one was due, so the length of a turn doesn't shift the pace.
  entry.due += frame;
  if (entry.due <= turnBegan_) entry.due = turnBegan_ + frame;
}

// A thread of a window that is not visible gets no turn, since its drawing would not be visible either.
void Scheduler::screenChanged() {
  const TimePoint now = desktop().now();
  for (const auto& entry : entries_) {
    entry->missed = !entry->waits && !entry->paced;
    if (!entry->waits && !(entry->paced && entry->isSeen())) continue;
    const TimePoint soonest = std::max(now, entry->lastPointerTurn + kPointerGap);
    if (entry->due <= soonest) continue;
    entry->forPointer = true;
    hasten(*entry, soonest);
  }
}

void Scheduler::hasten(Entry& entry, TimePoint due) {
  entry.due = due;
  setAlarm();
}

// Watches the pointer and the screen while a change can cause a turn.
void Scheduler::watchWhileSeen() {
  const auto isSeen = [](const auto& entry) { return entry->isSeen(); };
  if (std::none_of(entries_.begin(), entries_.end(), isSeen)) {
    watch_.reset();
  } else if (!watch_) {
    watch_.emplace([this] { screenChanged(); });
  }
}

void Scheduler::setAlarm() {
  const Entry* next = earliest();
  if (next && next->due != kNotByTime) {
    alarm_->set(next->due - desktop().now());
  } else {
    alarm_->cancel();
  }
}

Scheduler::Entry* Scheduler::earliest() {
  const auto sooner = [](const auto& a, const auto& b) { return a->due < b->due; };
  const auto found = std::min_element(entries_.begin(), entries_.end(), sooner);
  return found == entries_.end() ? nullptr : found->get();
}

void Scheduler::remove(const Thread& thread) {
  const auto found = std::find_if(entries_.begin(), entries_.end(), isFor(thread));
  // The entry leaves the list before it is destroyed. Releasing the owner may destroy the window and the thread.
  const std::unique_ptr<Entry> gone = std::move(*found);
  entries_.erase(found);
  watchWhileSeen();
}

}  // namespace tavrelkin
