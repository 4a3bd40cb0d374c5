#pragma once

#include <chrono>
#include <functional>
#include <memory>
#include <optional>

#include <QObject>
#include <QTimer>

#include "runtime/desktop/portal/ScreenCastPortal.h"
#include "runtime/desktop/portal/ScreenStreams.h"

namespace tavrelkin {

// A screen cast from the request to its end: the portal's permission, the first frames, and the first place of the
// pointer. If the desktop ends the cast because its monitors have changed, the session opens a new one without asking
// the user.
class ScreenSession {
 public:
  enum class End {
    refused,         // the user said no
    byUser,          // the user has ended the sharing in the desktop
    noPortal,        // this desktop can't share the screen
    noPointer,       // the desktop does not report the pointer's place
    pointerNotSeen,  // the desktop should report the pointer's place, but has not
    failed,          // the portal gave an error, or no frames came
    lost,            // frames came, but then PipeWire or the portal went away, or the stream stopped
  };

  // All are called from the event loop, except that giveUp() calls `ended` directly.
  struct Events {
    std::function<void()> begun;        // frames() is available and active
    std::function<void()> changed;      // frames() has something new
    std::function<void()> interrupted;  // frames() is null; the session will begin again, or end
    std::function<void(End)> ended;     // frames() is null for good
  };

  explicit ScreenSession(Events events);
  ScreenSession(const ScreenSession&) = delete;
  ScreenSession& operator=(const ScreenSession&) = delete;
  ~ScreenSession();

  // Asks for the screen. Does nothing while the session is open or is being opened.
  void open();

  // The longest time from waking an idle stream to its frames. Some 20 ms are usual; a busy desktop may take much
  // longer.
  static constexpr std::chrono::seconds kFramesAgain{2};

  // Makes frames() active or inactive; see ScreenStreams. Call it only while frames() is not null. After waking, the
  // session ends as lost if no frames come within kFramesAgain.
  void setActive(bool active);

  // Ends the session as lost, because the reader has waited for its frames in vain.
  void giveUp() { end(End::lost); }

  // The frames and the pointer; null before the session has begun and after its end.
  ScreenStreams* frames() const { return hasBegun_ ? streams_.get() : nullptr; }

 private:
  using Clock = std::chrono::steady_clock;

  void answered(ScreenCastPortal::Result answer);
  void streamChanged();
  void streamPaused(bool isPaused);
  void closed(ScreenCastPortal::Ending how);
  void stopped(End how);
  void watchMonitors();
  void monitorsChanged();
  void reopen();
  void interrupt();
  void dropStreams();
  void end(End how);
  void waitAtMost(std::chrono::milliseconds longest, End orElse);
  bool sharesAllMonitors() const;

  Events events_;
  std::unique_ptr<ScreenCastPortal> portal_;
  std::unique_ptr<ScreenStreams> streams_;
  bool isOpening_ = false;
  bool hasBegun_ = false;
  bool awaitsPlace_ = false;     // all frames have come, but no place of the pointer
  bool hasMissedPlace_ = false;  // an earlier session had all frames, but no place of the pointer
  bool isWaking_ = false;        // the session was made active, and frames have not come yet
  bool isStopped_ = false;       // the desktop has ended the cast; a change of its monitors may follow
  std::optional<Clock::time_point> monitorsChanged_;  // the last change since the session was opened
  End orElse_ = End::failed;
  QTimer limit_;  // ends the session with orElse_
  QObject context_;
};

}  // namespace tavrelkin
