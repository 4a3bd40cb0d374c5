#pragma once

#include <cstdint>
#include <functional>
#include <memory>
#include <optional>

#include "runtime/desktop/portal/ScreenModel.h"
#include "runtime/desktop/portal/StreamFormat.h"

struct pw_buffer;
struct pw_core;
struct pw_stream;
struct spa_buffer;

namespace tavrelkin {

// What one call of a stream delivers. The bytes of the frame are valid during the call only.
struct StreamArrival {
  std::optional<ScreenFrame> frame;    // the newest frame, not checked yet
  std::optional<ScreenPoint> pointer;  // the newest place, in frame pixels
};

enum class StreamState { streaming, paused, ended };

// One monitor's stream of frames. All callbacks come on the thread of the connection.
class ScreenStream {
 public:
  struct Events {
    std::function<void(const StreamArrival&)> arrived;
    std::function<void(StreamState)> stateChanged;
  };

  // Connects to a node of PipeWire; the stream is active. `mostFrames` is the largest number of frames a second. Null
  // if this fails at once; a later failure is reported as StreamState::ended.
  static std::unique_ptr<ScreenStream> connect(pw_core* core, std::uint32_t node, std::uint32_t mostFrames,
                                               Events events);

  ScreenStream(const ScreenStream&) = delete;
  ScreenStream& operator=(const ScreenStream&) = delete;
  ~ScreenStream();

  // An inactive stream receives no buffers.
  void setActive(bool active);

 private:
  struct Listener;

  ScreenStream(pw_core* core, Events events);
  bool connect(std::uint32_t node, std::uint32_t mostFrames);
  void negotiate(const spa_pod* format);
  void receive();
  ScreenFrame frameIn(const spa_buffer& buffer) const;

  Events events_;
  std::unique_ptr<Listener> listener_;
  pw_stream* stream_;
  std::optional<StreamFormat> format_;
};

}  // namespace tavrelkin
