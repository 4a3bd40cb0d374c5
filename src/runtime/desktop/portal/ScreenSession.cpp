#include "runtime/desktop/portal/ScreenSession.h"

#include <utility>

#include <QDBusConnection>
#include <QGuiApplication>
#include <QScreen>

namespace tavrelkin {

namespace {

using namespace std::chrono_literals;

// The longest time from the portal's answer to the first frame of each monitor.
constexpr auto kFirstFrames = 5s;
// The longest time from those frames to the first place of the pointer. A desktop that has not reported it by then
// never does.
constexpr auto kFirstPlace = 1s;
// The longest pause that the desktop makes unasked. A stream that pauses for longer has stopped.
constexpr auto kPause = 1s;
// The desktop ends the cast when its monitors change, at about the time at which the toolkit learns of the change.
constexpr auto kMonitorsChangedBefore = 3s;
constexpr auto kMonitorsChangeAfter = 700ms;

}  // namespace

ScreenSession::ScreenSession(Events events) : events_(std::move(events)) {
  limit_.setSingleShot(true);
  limit_.callOnTimeout(&context_, [this] { end(orElse_); });
}

ScreenSession::~ScreenSession() = default;

void ScreenSession::open() {
  if (isOpening_ || streams_) return;
  if (!portal_) {
    portal_ = std::make_unique<ScreenCastPortal>(QDBusConnection::sessionBus());
    portal_->closed = [this](ScreenCastPortal::Ending how) { closed(how); };
    watchMonitors();
  }
  isOpening_ = true;
  monitorsChanged_.reset();
  portal_->open([this](ScreenCastPortal::Result answer) { answered(std::move(answer)); });
}

void ScreenSession::answered(ScreenCastPortal::Result answer) {
  isOpening_ = false;
  if (auto* const cast = std::get_if<ScreenCast>(&answer)) {
    streams_ = ScreenStreams::connect(std::move(*cast), {.changed = [this] { streamChanged(); },
                                                         .paused = [this](bool isPaused) { streamPaused(isPaused); },
                                                         .lost = [this] { stopped(End::lost); }});
    if (!streams_) return end(End::noPortal);
    return waitAtMost(kFirstFrames, End::failed);
  }
  switch (std::get<ScreenCastPortal::Failure>(answer)) {
    case ScreenCastPortal::Failure::refused:
      return end(End::refused);
    case ScreenCastPortal::Failure::noPortal:
      return end(End::noPortal);
    case ScreenCastPortal::Failure::noPointer:
      return end(End::noPointer);
    case ScreenCastPortal::Failure::failed:
      return end(End::failed);
  }
}

void ScreenSession::streamChanged() {
  if (hasBegun_) {
    if (isWaking_ && streams_->waitForFrames(0ms)) {
      isWaking_ = false;
      limit_.stop();
    }
    return events_.changed();
  }
  if (isStopped_) return;
  const ScreenModel screen = streams_->screen();
  if (!screen.hasFrames()) return;
  if (screen.pointer()) {
    limit_.stop();
    hasBegun_ = true;
    hasMissedPlace_ = false;
    events_.begun();
  } else if (!std::exchange(awaitsPlace_, true)) {
    // If a desktop has failed twice to report the pointer's place, and all monitors are shared, it never reports it.
    const bool isHopeless = std::exchange(hasMissedPlace_, true) && sharesAllMonitors();
    waitAtMost(kFirstPlace, isHopeless ? End::noPointer : End::pointerNotSeen);
  }
}

void ScreenSession::streamPaused(bool isPaused) {
  if (!hasBegun_) return;
  if (isPaused) {
    waitAtMost(kPause, End::lost);
  } else if (!isWaking_) {
    limit_.stop();
  }
}

void ScreenSession::closed(ScreenCastPortal::Ending how) {
  if (how == ScreenCastPortal::Ending::portal) return end(End::lost);
  stopped(End::byUser);
}

// An earlier pause no longer counts; the streams report the next one.
void ScreenSession::setActive(bool active) {
  limit_.stop();
  isWaking_ = active;
  if (active) waitAtMost(kFramesAgain, End::lost);
  streams_->setActive(active);
}

// The session and its streams may end one after the other; the first end gives the reason.
void ScreenSession::stopped(End how) {
  if (!streams_ || isStopped_) return;
  if (monitorsChanged_ && Clock::now() - *monitorsChanged_ < kMonitorsChangedBefore) return reopen();
  interrupt();
  waitAtMost(kMonitorsChangeAfter, how);
  isStopped_ = true;
}

void ScreenSession::watchMonitors() {
  const auto watch = [this](QScreen* monitor) {
    QObject::connect(monitor, &QScreen::geometryChanged, &context_, [this] { monitorsChanged(); });
  };
  for (QScreen* const monitor : QGuiApplication::screens())
    watch(monitor);
  QObject::connect(qGuiApp, &QGuiApplication::screenAdded, &context_, [this, watch](QScreen* monitor) {
    watch(monitor);
    monitorsChanged();
  });
  QObject::connect(qGuiApp, &QGuiApplication::screenRemoved, &context_, [this] { monitorsChanged(); });
}

void ScreenSession::monitorsChanged() {
  monitorsChanged_ = Clock::now();
  if (isStopped_) reopen();
}

void ScreenSession::reopen() {
  interrupt();
  dropStreams();
  open();
}

void ScreenSession::interrupt() {
  if (std::exchange(hasBegun_, false)) events_.interrupted();
}

// Also forgets all state of the streams.
void ScreenSession::dropStreams() {
  limit_.stop();
  isStopped_ = false;
  awaitsPlace_ = false;
  isWaking_ = false;
  streams_.reset();
}

void ScreenSession::end(End how) {
  hasBegun_ = false;
  dropStreams();
  if (portal_) {
    portal_->close();
    // The token would share the same monitors again without asking the user.
    if (how == End::byUser || how == End::pointerNotSeen) portal_->forgetToken();
  }
  events_.ended(how);
}

bool ScreenSession::sharesAllMonitors() const {
  return streams_->screen().streamCount() >= static_cast<std::size_t>(QGuiApplication::screens().size());
}

void ScreenSession::waitAtMost(std::chrono::milliseconds longest, End orElse) {
  orElse_ = orElse;
  limit_.start(longest);
}

}  // namespace tavrelkin
