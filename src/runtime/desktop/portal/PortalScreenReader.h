#pragma once

#include <chrono>
#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <string>

#include <QTimer>

#include "runtime/desktop/native/NoScreenReader.h"
#include "runtime/desktop/portal/ColorPickerPortal.h"
#include "runtime/desktop/portal/ScreenSession.h"
#include "runtime/desktop/portal/WindowPointer.h"

namespace tavrelkin {

// Reads the screen of a Wayland session through the desktop portal, which asks the user for permission once in a run.
// Where the portal only lets the user pick single colours, request() has the user pick one. The reader needs the
// toolkit's event loop. It contacts neither the portal nor PipeWire before the first request.
class PortalScreenReader final : public ScreenReader {
 public:
  // `tell` shows the user a message. It is called from the event loop.
  explicit PortalScreenReader(std::function<void(const std::string&)> tell);

  ScreenState state() const override { return state_; }
  void request(const Picked& picked) override;
  void dropRequest() override;
  bool canPickColor() const override { return canPick_; }
  void beginTurn() override;
  std::uint32_t pixel(ScreenPoint at) override;
  ScreenPoint pointer() override;
  void watch(std::function<void()> changed) override;
  // False if the screen is unavailable: the pixels are then constant greys, but watch() reports no movements of the
  // pointer.
  bool tellsEachChange() const override { return state_ != ScreenState::unavailable; }
  bool optionKey() override { return toolkit_.optionKey(); }

 private:
  using Clock = std::chrono::steady_clock;

  void begun();
  void changed();
  void ended(ScreenSession::End how);
  void fallBackToPicks(const char* onlyPicks, const char* noPicks);
  void pick(Picked picked);
  void fail(ScreenState state, const char* message);
  void become(ScreenState state);
  void tellWatcher() const;

  // Whether there are current frames. Wakes an idle stream and waits for its frames.
  bool isReadable();
  void setActive(bool active);
  void lingered();

  ScreenPoint findPointer();
  WindowPointer::Stream streamPointer() const;

  std::function<void(const std::string&)> tell_;
  NoScreenReader toolkit_{[] {}};  // gives the greys, and the toolkit's pointer and Option key
  ScreenSession session_;
  std::unique_ptr<ColorPickerPortal> picker_;
  ScreenState state_ = ScreenState::notAsked;
  bool canPick_ = false;
  const char* onlyPicks_ = nullptr;  // the message that says why the user can only pick single colours
  Picked wanted_;                    // the caller's function for the request that is under way
  bool isRequesting_ = false;
  bool hasBegun_ = false;  // a session has begun at some time in this run
  std::function<void()> watcher_;

  bool isActive_ = false;
  Clock::time_point activeSince_;
  bool wasRead_ = false;  // a read has come since linger_ was started
  QTimer linger_;

  // The results of this turn: all its pixels come from one moment, and so do both coordinates of the pointer.
  std::optional<ScreenModel> screen_;
  std::optional<ScreenPoint> pointer_;
  WindowPointer windowPointer_{[this] { return streamPointer(); }};
};

}  // namespace tavrelkin
