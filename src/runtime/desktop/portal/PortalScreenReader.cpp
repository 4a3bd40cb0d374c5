#include "runtime/desktop/portal/PortalScreenReader.h"

#include <algorithm>
#include <utility>

#include <QDBusConnection>

#include "runtime/desktop/portal/Messages.h"

namespace tavrelkin {

namespace {

using namespace std::chrono_literals;

// How long the stream stays active after a read, since another read often follows soon.
constexpr auto kLinger = 1s;
// How late the stream may report the pointer. If its place is out of date, it changes within this time: 20 ms are
// usual, 75 ms were measured on a desktop that draws in software. After the change the place must rest for some frames.
constexpr auto kPointerDelay = 100ms;
constexpr auto kPointerRest = 40ms;

}  // namespace

PortalScreenReader::PortalScreenReader(std::function<void(const std::string&)> tell)
    : tell_(std::move(tell)),
      session_({.begun = [this] { begun(); },
                .changed = [this] { changed(); },
                .interrupted = [this] { become(ScreenState::asking); },
                .ended = [this](ScreenSession::End how) { ended(how); }}) {
  linger_.setSingleShot(true);
  linger_.callOnTimeout([this] { lingered(); });
}

void PortalScreenReader::request(const Picked& picked) {
  isRequesting_ = true;
  const bool canRead = isReadable();
  isRequesting_ = false;
  if (canRead) return;
  if (state_ == ScreenState::unavailable) {
    if (!canPick_) return;
    if (picked) return pick(picked);
    return tell_(onlyPicks_);
  }
  wanted_ = picked;
  if (state_ == ScreenState::asking) return;
  become(ScreenState::asking);
  session_.open();
}

void PortalScreenReader::dropRequest() {
  wanted_ = {};
  if (picker_) picker_->cancel();
}

void PortalScreenReader::begun() {
  hasBegun_ = true;
  isActive_ = true;
  activeSince_ = Clock::now();
  wanted_ = {};
  become(ScreenState::live);
  if (!watcher_) linger_.start(kLinger);
}

void PortalScreenReader::changed() {
  if (state_ == ScreenState::idle) {
    if (!isActive_ || !session_.frames()->waitForFrames(0ms)) return;
    state_ = ScreenState::live;
  }
  tellWatcher();
}

// Calls a copy, since the call may end the watch.
void PortalScreenReader::tellWatcher() const {
  if (const auto watcher = watcher_) watcher();
}

void PortalScreenReader::ended(ScreenSession::End how) {
  using End = ScreenSession::End;
  const bool wasActive = std::exchange(isActive_, false);
  switch (how) {
    case End::refused:
      return fail(ScreenState::refused, message::kRefused);
    case End::byUser:
      return become(ScreenState::notAsked);
    case End::noPortal:
      // A portal that was there once may come back.
      if (hasBegun_) return fail(ScreenState::lost, message::kFailed);
      return fallBackToPicks(message::kOnlyPicksWithoutPortal, message::kNoPortal);
    case End::noPointer:
      return fallBackToPicks(message::kOnlyPicks, message::kNoPointer);
    case End::pointerNotSeen:
      return fail(ScreenState::lost, message::kPointerNotSeen);
    case End::failed:
      return fail(ScreenState::lost, message::kFailed);
    case End::lost:
      // No message if nobody was reading, or if a request has found the stream dead: the request then opens a new
      // session.
      return wasActive && !isRequesting_ ? fail(ScreenState::lost, message::kLost) : become(ScreenState::lost);
  }
}

void PortalScreenReader::fallBackToPicks(const char* onlyPicks, const char* noPicks) {
  onlyPicks_ = onlyPicks;
  picker_ = std::make_unique<ColorPickerPortal>(QDBusConnection::sessionBus());
  picker_->askAvailable([this, noPicks](bool isAvailable) {
    canPick_ = isAvailable;
    if (!isAvailable) return fail(ScreenState::unavailable, noPicks);
    if (!wanted_) return fail(ScreenState::unavailable, onlyPicks_);
    become(ScreenState::unavailable);
    pick(std::exchange(wanted_, {}));
  });
}

void PortalScreenReader::pick(Picked picked) {
  picker_->pick([picked = std::move(picked)](std::optional<std::uint32_t> color) {
    if (color) picked(*color);
  });
}

// The windows learn of the new state before the message, so that none shows the greys behind it.
void PortalScreenReader::fail(ScreenState state, const char* message) {
  wanted_ = {};
  become(state);
  tell_(message);
}

void PortalScreenReader::become(ScreenState state) {
  if (std::exchange(state_, state) != state) tellWatcher();
}

void PortalScreenReader::beginTurn() {
  screen_.reset();
  pointer_.reset();
}

std::uint32_t PortalScreenReader::pixel(ScreenPoint at) {
  if (!isReadable()) return toolkit_.pixel(at);
  if (!screen_) screen_ = session_.frames()->screen();
  return screen_->pixel(at);
}

ScreenPoint PortalScreenReader::pointer() {
  if (!pointer_) pointer_ = findPointer();
  return *pointer_;
}

ScreenPoint PortalScreenReader::findPointer() {
  if (!isReadable()) return toolkit_.pointer();
  const bool isLate = windowPointer_.takeLateness();
  if (const auto place = windowPointer_.place()) return *place;
  ScreenStreams& frames = *session_.frames();
  if (isLate) frames.waitForPointer(kPointerRest, kPointerDelay);
  screen_ = frames.screen();
  return screen_->pointer().value_or(ScreenPoint());
}

void PortalScreenReader::watch(std::function<void()> changed) {
  watcher_ = std::move(changed);
  if (!session_.frames()) return;
  if (watcher_) {
    setActive(true);
  } else if (isActive_) {
    linger_.start(kLinger);
  }
}

bool PortalScreenReader::isReadable() {
  if (state_ == ScreenState::idle) {
    setActive(true);
    if (session_.frames()->waitForFrames(ScreenSession::kFramesAgain)) {
      state_ = ScreenState::live;
    } else {
      session_.giveUp();
    }
  }
  wasRead_ = true;
  return state_ == ScreenState::live;
}

void PortalScreenReader::setActive(bool active) {
  if (std::exchange(isActive_, active) == active) return;
  session_.setActive(active);
  screen_.reset();
  if (!active) return void(state_ = ScreenState::idle);
  activeSince_ = Clock::now();
  linger_.start(kLinger);
}

void PortalScreenReader::lingered() {
  if (watcher_ || !session_.frames()) return;
  if (std::exchange(wasRead_, false)) return linger_.start(kLinger);
  setActive(false);
}

// The pointer of an idle stream is stale. A woken stream knows the place from its first frame on.
WindowPointer::Stream PortalScreenReader::streamPointer() const {
  const ScreenStreams* const frames = session_.frames();
  if (!frames) return {};
  const ScreenModel screen = frames->screen();
  WindowPointer::Stream result{.pointer = {}, .scale = screen.pointerScale()};
  const auto place = screen.pointer();
  if (place && state_ == ScreenState::live)
    result.pointer = PointerMerge::Stream{*place, std::max(activeSince_, frames->lastPointerMove())};
  return result;
}

}  // namespace tavrelkin
