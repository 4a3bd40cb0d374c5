#include "runtime/desktop/portal/PortalScreenReader.h"

#include <chrono>
#include <cmath>
#include <cstdint>
#include <optional>
#include <utility>

#include <QDBusConnection>
#include <QGuiApplication>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QTimer>
#include <QWindow>

#include "runtime/desktop/native/NoScreenReader.h"
#include "runtime/desktop/portal/ColorPickerPortal.h"
#include "runtime/desktop/portal/Messages.h"
#include "runtime/desktop/portal/PointerMerge.h"
#include "runtime/desktop/portal/ScreenSession.h"

namespace tavrelkin {

namespace {

using namespace std::chrono_literals;
using Clock = std::chrono::steady_clock;

// The stream goes on for so long after a read, since the next read often follows at once.
constexpr auto kLinger = 1s;
// How long the stream may be behind the pointer. Where it is not up to date yet, it comes to another place within this
// time: 20 ms are usual, 75 ms were seen on a desktop that draws in software. After that it must rest for some frames.
constexpr auto kPointerDelay = 100ms;
constexpr auto kPointerRest = 40ms;

class PortalScreenReader final : public QObject, public ScreenReader {
 public:
  explicit PortalScreenReader(std::function<void(const std::string&)> tell);

  ScreenState state() const override { return state_; }
  void request(const Picked& picked) override;
  void dropRequest() override;
  bool canPickColor() const override { return canPick_; }
  void beginTurn() override;
  std::uint32_t pixel(ScreenPoint at) override;
  ScreenPoint pointer() override;
  void watch(std::function<void()> changed) override;
  // The greys in place of the screen don't change, but the pointer does.
  bool tellsEachChange() const override { return state_ != ScreenState::unavailable; }
  bool optionKey() override { return toolkit_.optionKey(); }

  // Sees the events of all windows of the program.
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  void begun();
  void changed();
  void ended(ScreenSession::End how);
  void fallBackToPicks(const char* onlyPicks, const char* notEvenThose);
  void pick(Picked picked);
  void fail(ScreenState state, const char* message);
  void become(ScreenState state);
  void tellWatcher() const;

  // Whether there are frames of this moment; an idle stream is woken for it.
  bool isReadable();
  void setActive(bool active);
  void lingered();

  ScreenPoint findPointer();
  void expectLatePointer();
  void noteMouse(const QWindow& window, QPointF local);
  std::optional<PointerMerge::Stream> streamPointer() const;

  std::function<void(const std::string&)> tell_;
  NoScreenReader toolkit_{[] {}};  // for what the toolkit knows
  ScreenSession session_;
  std::unique_ptr<ColorPickerPortal> picker_;
  ScreenState state_ = ScreenState::notAsked;
  bool canPick_ = false;
  const char* onlyPicks_ = message::kOnlyPicks;  // why
  Picked wanted_;                                // what the request is for that is under way
  bool isRequesting_ = false;
  bool hasBegun_ = false;  // a session, at any time in this run
  std::function<void()> watcher_;

  bool isActive_ = false;
  Clock::time_point activeSince_;
  bool wasRead_ = false;  // since the lingering began
  QTimer linger_;

  // Of this turn, so that all pixels are of one moment, and so are the two coordinates of the pointer.
  std::optional<ScreenModel> screen_;
  std::optional<ScreenPoint> pointer_;
  PointerMerge merge_;
  bool mayBeLate_ = false;  // in the event of a press, a release or a key, whose place the stream may not know yet
};

PortalScreenReader::PortalScreenReader(std::function<void(const std::string&)> tell)
    : tell_(std::move(tell)),
      session_({.begun = [this] { begun(); },
                .changed = [this] { changed(); },
                .interrupted = [this] { become(ScreenState::asking); },
                .ended = [this](ScreenSession::End how) { ended(how); }}) {
  linger_.setSingleShot(true);
  linger_.callOnTimeout(this, [this] { lingered(); });
  QCoreApplication::instance()->installEventFilter(this);
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

// By a copy: the call may end the watch.
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
      // What was there once may come back.
      if (hasBegun_) return fail(ScreenState::lost, message::kFailed);
      return fallBackToPicks(message::kOnlyPicksWithoutPortal, message::kNoPortal);
    case End::noPointer:
      return fallBackToPicks(message::kOnlyPicks, message::kNoPointer);
    case End::pointerNotSeen:
      return fail(ScreenState::lost, message::kPointerNotSeen);
    case End::failed:
      return fail(ScreenState::lost, message::kFailed);
    case End::lost:
      // Nobody misses what nobody reads, and a request that has met a dead stream begins a new session.
      return wasActive && !isRequesting_ ? fail(ScreenState::lost, message::kLost) : become(ScreenState::lost);
  }
}

void PortalScreenReader::fallBackToPicks(const char* onlyPicks, const char* notEvenThose) {
  onlyPicks_ = onlyPicks;
  picker_ = std::make_unique<ColorPickerPortal>(QDBusConnection::sessionBus());
  picker_->askAvailable([this, notEvenThose](bool isAvailable) {
    canPick_ = isAvailable;
    if (!isAvailable) return fail(ScreenState::unavailable, notEvenThose);
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

// The windows learn it first, so that none shows the greys below the message.
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
  const bool mayBeLate = std::exchange(mayBeLate_, false);
  if (const auto place = merge_.place(streamPointer(), Clock::now())) return *place;
  ScreenStreams& frames = *session_.frames();
  if (mayBeLate) frames.waitForPointer(kPointerRest, kPointerDelay);
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

bool PortalScreenReader::eventFilter(QObject* watched, QEvent* event) {
  if (!watched->isWindowType()) return false;
  const auto& window = static_cast<const QWindow&>(*watched);
  switch (event->type()) {
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonRelease:
      expectLatePointer();
      [[fallthrough]];
    case QEvent::MouseMove:
      noteMouse(window, static_cast<QMouseEvent&>(*event).position());
      break;
    case QEvent::Enter:
      noteMouse(window, static_cast<QEnterEvent&>(*event).position());
      break;
    case QEvent::Leave:
    case QEvent::Resize:
    case QEvent::Hide:
      merge_.forget();
      break;
    case QEvent::KeyPress:
    case QEvent::ShortcutOverride:
      if (!static_cast<QKeyEvent&>(*event).isAutoRepeat()) expectLatePointer();
      break;
    default:
      break;
  }
  return false;
}

// The place of the event's moment matters to the handlers that run within the event only.
void PortalScreenReader::expectLatePointer() {
  mayBeLate_ = true;
  QMetaObject::invokeMethod(
      this, [this] { mayBeLate_ = false; }, Qt::QueuedConnection);
}

// In the pixels of the stream's frames, of which there may be several to a pixel of the toolkit.
void PortalScreenReader::noteMouse(const QWindow& window, QPointF local) {
  const double scale = session_.frames() ? session_.frames()->screen().pointerScale() : 1;
  const ScreenPoint at{static_cast<std::int32_t>(std::floor(local.x() * scale)),
                       static_cast<std::int32_t>(std::floor(local.y() * scale))};
  merge_.moved(reinterpret_cast<std::uintptr_t>(&window), at, streamPointer(), Clock::now());
}

// An idle stream knows nothing; a woken one knows the place from its first frame on.
std::optional<PointerMerge::Stream> PortalScreenReader::streamPointer() const {
  const ScreenStreams* const frames = session_.frames();
  if (state_ != ScreenState::live || !frames) return std::nullopt;
  const auto place = frames->screen().pointer();
  if (!place) return std::nullopt;
  return PointerMerge::Stream{*place, std::max(activeSince_, frames->lastPointerMove())};
}

}  // namespace

std::unique_ptr<ScreenReader> makePortalScreenReader(std::function<void(const std::string&)> tell) {
  return std::make_unique<PortalScreenReader>(std::move(tell));
}

}  // namespace tavrelkin
