#pragma once

#include <chrono>
#include <condition_variable>
#include <cstdint>
#include <functional>
#include <memory>
#include <mutex>
#include <optional>
#include <vector>

#include <QObject>

#include "runtime/desktop/portal/PipeWireConnection.h"
#include "runtime/desktop/portal/ScreenCast.h"
#include "runtime/desktop/portal/ScreenModel.h"
#include "runtime/desktop/portal/ScreenStream.h"

namespace tavrelkin {

// Receives the frames and the pointer of a screen cast by PipeWire. A thread takes them out of the buffers that
// PipeWire shares with the desktop, and never waits for the thread of the event loop, which all operations are for.
class ScreenStreams {
 public:
  using Clock = std::chrono::steady_clock;

  // All are called from the event loop, and may destroy the object.
  struct Events {
    std::function<void()> changed{};            // frames or pointer places have arrived since the last call
    std::function<void(bool paused)> paused{};  // the desktop has paused a stream while active, or goes on
    std::function<void()> lost{};               // the connection or a stream has ended; nothing arrives any more
  };

  // Begins to receive, active. `mostFrames` is how many frames a second the desktop should send at most. Null where
  // PipeWire can't be used: its modules or its configuration are missing, or the descriptor is no connection to it.
  static std::unique_ptr<ScreenStreams> connect(ScreenCast cast, Events events, std::uint32_t mostFrames = 240);

  ScreenStreams(const ScreenStreams&) = delete;
  ScreenStreams& operator=(const ScreenStreams&) = delete;
  ~ScreenStreams();

  // While inactive the desktop sends nothing. It sends a full frame of each monitor soon after it is made active.
  void setActive(bool active);

  // What has arrived so far. What arrives later does not change the copy.
  ScreenModel screen() const;

  // When the pointer last came to another place. The epoch of the clock where it never did.
  Clock::time_point lastPointerMove() const;

  // Blocks until each stream has had a full frame since it was last made active. False where the time is over, or the
  // streams are lost.
  bool waitForFrames(std::chrono::milliseconds longest) const;

  // Blocks for `longest`; less where the pointer comes to another place meanwhile and then stays there for `quiet`.
  void waitForPointer(std::chrono::milliseconds quiet, std::chrono::milliseconds longest) const;

 private:
  struct StreamStatus {
    bool streaming = false;
    bool pausedUnasked = false;
    bool fresh = false;  // has had a frame since it was made active
  };

  // What the event loop has not been told yet.
  struct News {
    bool posted = false;
    bool changed = false;
    std::optional<bool> paused;
    bool lost = false;
  };

  ScreenStreams(const std::vector<CastStream>& streams, Events events);
  bool start(ScreenCast cast, std::uint32_t mostFrames);

  // On the thread of the connection.
  void arrived(std::size_t stream, const StreamArrival& arrival);
  void stateChanged(std::size_t stream, StreamState state);
  void ended();

  void post();
  void tell();
  bool areFresh() const;

  mutable std::mutex mutex_;  // for all that follows, up to the next blank line
  mutable std::condition_variable arrival_;
  ScreenModel model_;
  std::vector<StreamStatus> statuses_;
  bool active_ = true;
  bool paused_ = false;
  bool lost_ = false;
  Clock::time_point lastPointerMove_;
  News news_;

  Events events_;
  QObject context_;  // takes a posted call back when the streams are gone
  std::unique_ptr<PipeWireConnection> connection_;
  std::vector<std::unique_ptr<ScreenStream>> streams_;
};

}  // namespace tavrelkin
