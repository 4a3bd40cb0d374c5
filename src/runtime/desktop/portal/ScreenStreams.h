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

// Receives the frames and the pointer of a screen cast through PipeWire. A separate thread copies them from the buffers
// that PipeWire shares with the desktop, and never waits for the event loop. All operations must be called on the event
// loop's thread.
class ScreenStreams {
 public:
  using Clock = std::chrono::steady_clock;

  // All are called from the event loop, and may destroy the object.
  struct Events {
    std::function<void()> changed{};            // frames or places of the pointer have arrived since the last call
    std::function<void(bool paused)> paused{};  // the desktop has paused an active stream, or resumed it
    std::function<void()> lost{};               // the connection or a stream has ended; nothing arrives any more
  };

  // Connects to the streams, which are active at first. The desktop should send at most `mostFrames` frames a second.
  // Null if PipeWire can't be used: its modules or its configuration are missing, or the descriptor is not a connection
  // to it.
  static std::unique_ptr<ScreenStreams> connect(ScreenCast cast, Events events, std::uint32_t mostFrames = 240);

  ScreenStreams(const ScreenStreams&) = delete;
  ScreenStreams& operator=(const ScreenStreams&) = delete;
  ~ScreenStreams();

  // The desktop sends nothing to inactive streams. Soon after they become active it sends a full frame of each monitor.
  void setActive(bool active);

  // A copy of what has arrived so far; later arrivals do not change the copy.
  ScreenModel screen() const;

  // When the pointer's place last changed; the epoch of the clock if it never did.
  Clock::time_point lastPointerMove() const;

  // Blocks until each stream has had a full frame since it was last made active. False if `longest` passes first, or
  // the streams are lost.
  bool waitForFrames(std::chrono::milliseconds longest) const;

  // Blocks for `longest`. Returns earlier if the streams are lost, or if the pointer's place changes meanwhile and then
  // stays the same for `quiet`.
  void waitForPointer(std::chrono::milliseconds quiet, std::chrono::milliseconds longest) const;

 private:
  struct StreamStatus {
    bool streaming = false;
    bool pausedUnasked = false;
    bool fresh = false;  // a frame has come since the stream was made active
  };

  // The events that have not been delivered to the event loop yet.
  struct News {
    bool posted = false;
    bool changed = false;
    std::optional<bool> paused;
    bool lost = false;
  };

  ScreenStreams(const std::vector<CastStream>& streams, Events events);
  bool start(ScreenCast cast, std::uint32_t mostFrames);

  // Called on the thread of the connection.
  void arrived(std::size_t stream, const StreamArrival& arrival);
  void stateChanged(std::size_t stream, StreamState state);
  void ended();

  void post();
  void tell();
  bool areFresh() const;

  mutable std::mutex mutex_;  // guards the members up to the next blank line
  mutable std::condition_variable arrival_;
  ScreenModel model_;
  std::vector<StreamStatus> statuses_;
  bool active_ = true;
  bool paused_ = false;
  bool lost_ = false;
  Clock::time_point lastPointerMove_;
  News news_;

  Events events_;
  QObject context_;  // drops a posted call when the streams are destroyed
  std::unique_ptr<PipeWireConnection> connection_;
  std::vector<std::unique_ptr<ScreenStream>> streams_;
};

}  // namespace tavrelkin
