#pragma once

#include <chrono>
#include <cstdint>
#include <functional>
#include <memory>
#include <optional>

#include <pipewire/pipewire.h>
#include <spa/param/video/raw.h>

#include "fakes/portal/PipeWireDaemon.h"
#include "fakes/portal/StreamLinker.h"
#include "runtime/desktop/portal/PipeWireConnection.h"

namespace tavrelkin {
class StreamParameters;
}

namespace tavrelkin::test {

// A monitor of a desktop, as it is played to PipeWire: it sends frames and pointer places when a test says so, to each
// stream that asks for its node.
class ScreenProducer {
 public:
  using Size = CastStream::Size;
  using Picture = std::function<std::uint32_t(std::int32_t x, std::int32_t y)>;  // gives 0xRRGGBB

  // What one buffer holds.
  struct Update {
    Picture picture{};                     // without one there are no pixels, as when just the pointer has moved
    std::uint32_t cursorId = 1;            // 0 where the pointer is on another monitor
    ScreenPoint pointer{};                 // in frame pixels
    std::optional<std::int32_t> stride{};  // what the buffer claims, in place of the truth
    std::optional<std::uint32_t> offset{};
    std::optional<std::uint32_t> bytes{};
  };

  // Throws where the daemon doesn't take it. `format` is one of SPA_VIDEO_FORMAT_BGRx and so on.
  ScreenProducer(const PipeWireDaemon& daemon, Size size, std::uint32_t format = SPA_VIDEO_FORMAT_BGRx);
  ScreenProducer(const ScreenProducer&) = delete;
  ScreenProducer& operator=(const ScreenProducer&) = delete;
  ~ScreenProducer();

  std::uint32_t node() const { return node_; }

  // Takes effect with the next update.
  void setSize(Size size);

  // Sends as soon as somebody receives and the last update has gone out. False where that takes longer than `longest`.
  bool send(const Update& update, std::chrono::milliseconds longest = std::chrono::seconds(5));

  // Whether it comes true soon that somebody receives, or that nobody does.
  bool waitForReceiver(bool wanted, std::chrono::milliseconds longest = std::chrono::seconds(5));

 private:
  void connect();
  void addFormat(StreamParameters& offer) const;
  void offerBuffers(const spa_pod& format);
  bool trySend(const Update& update);
  void fill(spa_buffer& buffer, const Update& update) const;

  std::unique_ptr<PipeWireConnection> connection_;
  StreamLinker linker_;
  pw_stream* stream_;
  pw_stream_events events_{};
  spa_hook hook_{};
  std::uint32_t node_ = PW_ID_ANY;

  // The lock of the connection guards these.
  Size size_;
  std::uint32_t format_;
  Size agreedSize_;
  bool isReceived_ = false;
  bool isSending_ = false;
};

}  // namespace tavrelkin::test
