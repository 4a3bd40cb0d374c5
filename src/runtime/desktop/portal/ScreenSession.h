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

// A screen cast from the request to its end: the portal's permission, the first frames with a first place of the
// pointer, and a new cast without a question where the desktop ends the old one because its monitors have changed.
class ScreenSession {
 public:
  enum class End {
    refused,         // the user said no
    byUser,          // the user has ended it in the desktop
    noPortal,        // nothing here shares a screen
    noPointer,       // the desktop does not tell the pointer's place
    pointerNotSeen,  // it should, but has not
    failed,          // the portal gave an error, or no frames came
    lost,            // frames have come, but PipeWire or the portal is gone, or the stream has stopped
  };

  // All from the event loop, but for the one that giveUp() causes.
  struct Events {
    std::function<void()> begun;        // frames() is there, and active
    std::function<void()> changed;      // something in frames() is new
    std::function<void()> interrupted;  // frames() is gone; the session begins once more, or ends
    std::function<void(End)> ended;     // frames() is gone for good
  };

  explicit ScreenSession(Events events);
  ScreenSession(const ScreenSession&) = delete;
  ScreenSession& operator=(const ScreenSession&) = delete;
  ~ScreenSession();

  // Asks for the screen. Does nothing while the session is open or is being opened.
  void open();

  // From waking an idle stream to its frames. They take some 20 ms; a desktop that is busy may take much longer.
  static constexpr std::chrono::seconds kFramesAgain{2};

  // Has frames() sent, or no more; see ScreenStreams. Of use while frames() is there. The session ends as lost where
  // frames that are wanted don't come within kFramesAgain.
  void setActive(bool active);

  // Ends the session as lost: its frames have failed the reader.
  void giveUp() { end(End::lost); }

  // The frames and the pointer, or null before the session has begun and after its end.
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
  bool awaitsPlace_ = false;     // of the pointer: all frames are there
  bool hasMissedPlace_ = false;  // none has come since a session had all frames
  bool isWaking_ = false;        // has been made active, and frames have not come yet
  bool isStopped_ = false;       // the desktop has ended it, and may tell of a change of its monitors next
  std::optional<Clock::time_point> monitorsChanged_;  // since the session was opened
  End orElse_ = End::failed;
  QTimer limit_;  // of what is being waited for
  QObject context_;
};

}  // namespace tavrelkin
