#include "runtime/desktop/x11/X11ScreenReader.h"

#include <csignal>
#include <cstdint>
#include <ctime>
#include <utility>

#include <QSocketNotifier>

#include "runtime/desktop/x11/OptionKeys.h"
#include "runtime/desktop/x11/PointerWatch.h"
#include "runtime/desktop/x11/RootCapture.h"
#include "runtime/desktop/x11/Xcb.h"

namespace tavrelkin {

namespace {

constexpr std::int64_t kGoodForNanoseconds = 8'000'000;

// This clock is exact to a tick of the kernel, some milliseconds, and cheap enough to read for each pixel.
std::int64_t coarseNanoseconds() {
  std::timespec time;
  clock_gettime(CLOCK_MONOTONIC_COARSE, &time);
  return std::int64_t{time.tv_sec} * 1'000'000'000 + time.tv_nsec;
}

const xcb_screen_t* screenOfNumber(const xcb_setup_t* setup, int number) {
  auto screens = xcb_setup_roots_iterator(setup);
  for (; screens.rem > 0 && number > 0; --number)
    xcb_screen_next(&screens);
  return screens.rem > 0 ? screens.data : nullptr;
}

class X11ScreenReader final : public ScreenReader {
 public:
  X11ScreenReader(XcbConnection connection, const xcb_screen_t& screen, const PixelFormat& format,
                  std::function<void(std::string)> connectionLost);

  void beginTurn() override { isFresh_ = false; }

  std::uint32_t pixel(ScreenPoint at) override {
    look();
    if (const auto* color = capture_.find(at)) return *color;
    return pixelOutsideBlock(at);
  }

  ScreenPoint pointer() override;
  void watch(std::function<void()> changed) override;
  bool optionKey() override;

 private:
  using Poll = xcb_generic_event_t* (*)(xcb_connection_t*);

  // Discards what was read before this turn or too long ago. The clock costs as much as a read of a pixel, so only one
  // in 16 reads looks at it.
  void look() {
    constexpr unsigned kReadsPerLook = 16;
    if (!isFresh_ || (++reads_ % kReadsPerLook == 0 && isOld())) refresh();
  }
  bool isOld() const { return coarseNanoseconds() - freshSince_ >= kGoodForNanoseconds; }

  void refresh();
  std::uint32_t pixelOutsideBlock(ScreenPoint at);
  XcbPtr<xcb_query_pointer_reply_t> askPointer();
  void takeEvents(Poll poll);
  void afterReply();
  void lose();

  // The connection comes first, so that it is destroyed after the members that use it.
  XcbConnection connection_;
  xcb_window_t root_;
  RootCapture capture_;
  PointerWatch watch_;
  OptionKeys optionKeys_;
  QSocketNotifier notifier_;

  std::function<void(std::string)> connectionLost_;
  bool isLost_ = false;

  bool isFresh_ = false;
  unsigned reads_ = 0;
  std::int64_t freshSince_ = 0;
  bool isPointerKnown_ = false;  // pointer_ is valid for this turn
  ScreenPoint pointer_;
};

X11ScreenReader::X11ScreenReader(XcbConnection connection, const xcb_screen_t& screen, const PixelFormat& format,
                                 std::function<void(std::string)> connectionLost)
    : connection_(std::move(connection)),
      root_(screen.root),
      capture_(connection_.get(), screen, format),
      watch_(connection_.get(), screen.root),
      optionKeys_(connection_.get()),
      notifier_(xcb_get_file_descriptor(connection_.get()), QSocketNotifier::Read),
      connectionLost_(std::move(connectionLost)) {
  QObject::connect(&notifier_, &QSocketNotifier::activated, &notifier_, [this] {
    takeEvents(xcb_poll_for_event);
    watch_.deliver();
  });
  const std::uint32_t events = XCB_EVENT_MASK_STRUCTURE_NOTIFY;
  xcb_change_window_attributes(connection_.get(), root_, XCB_CW_EVENT_MASK, &events);
  xcb_flush(connection_.get());
}

// Events are read too, since a busy program may not have been in the event loop for long.
void X11ScreenReader::refresh() {
  isFresh_ = true;
  freshSince_ = coarseNanoseconds();
  isPointerKnown_ = false;
  capture_.drop();
  takeEvents(xcb_poll_for_event);
  watch_.deliverSoon();
}

std::uint32_t X11ScreenReader::pixelOutsideBlock(ScreenPoint at) {
  if (!capture_.isOnScreen(at)) return 0;
  capture_.take(at);
  const auto* found = capture_.find(at);
  const std::uint32_t color = found ? *found : 0;
  afterReply();
  return color;
}

ScreenPoint X11ScreenReader::pointer() {
  look();
  if (!isPointerKnown_) {
    if (const auto reply = askPointer()) pointer_ = {reply->root_x, reply->root_y};
    isPointerKnown_ = true;
  }
  return pointer_;
}

bool X11ScreenReader::optionKey() {
  const auto reply = askPointer();
  if (!reply) return false;
  const std::uint16_t wanted = optionKeys_.mask();
  afterReply();
  return (reply->mask & wanted) != 0;
}

XcbPtr<xcb_query_pointer_reply_t> X11ScreenReader::askPointer() {
  auto reply = await(connection_.get(), xcb_query_pointer(connection_.get(), root_), xcb_query_pointer_reply);
  afterReply();
  return reply;
}

void X11ScreenReader::watch(std::function<void()> changed) {
  watch_.set(std::move(changed));
}

// XCB may have read events while it waited for a reply. The socket notifier does not report those.
void X11ScreenReader::afterReply() {
  takeEvents(xcb_poll_for_queued_event);
  watch_.deliverSoon();
}

void X11ScreenReader::takeEvents(Poll poll) {
  while (const XcbPtr<xcb_generic_event_t> event{poll(connection_.get())}) {
    watch_.note(*event);
    optionKeys_.note(*event);
    if (kindOf(*event) != XCB_CONFIGURE_NOTIFY) continue;
    const auto& change = reinterpret_cast<const xcb_configure_notify_event_t&>(*event);
    if (change.window == root_) capture_.setRootSize(change.width, change.height);
  }
  if (xcb_connection_has_error(connection_.get())) lose();
}

void X11ScreenReader::lose() {
  if (std::exchange(isLost_, true)) return;
  notifier_.setEnabled(false);  // a closed socket stays ready to read for ever
  capture_.setRootSize(0, 0);
  if (connectionLost_) connectionLost_("the connection to the display was lost");
}

// When the server is gone, XCB's next write to the socket would end the process by SIGPIPE, without a message.
void ignoreBrokenPipes() {
  struct sigaction current = {};
  if (sigaction(SIGPIPE, nullptr, &current) == 0 && current.sa_handler == SIG_DFL) std::signal(SIGPIPE, SIG_IGN);
}

}  // namespace

std::unique_ptr<ScreenReader> makeX11ScreenReader(std::function<void(std::string)> connectionLost) {
  int number = 0;
  XcbConnection connection(xcb_connect(nullptr, &number));
  if (xcb_connection_has_error(connection.get())) return nullptr;

  const auto* setup = xcb_get_setup(connection.get());
  const auto* screen = screenOfNumber(setup, number);
  if (!screen) return nullptr;
  const auto format = rootPixelFormat(*setup, *screen);
  if (!format) return nullptr;

  ignoreBrokenPipes();
  return std::make_unique<X11ScreenReader>(std::move(connection), *screen, *format, std::move(connectionLost));
}

}  // namespace tavrelkin
