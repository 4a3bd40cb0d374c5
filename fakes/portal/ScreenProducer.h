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

// Plays a monitor to PipeWire: it sends frames and places of the pointer when a test says so, to each stream that asks
// for its node.
class ScreenProducer {
 public:
  using Size = CastStream::Size;
  using Picture = std::function<std::uint32_t(std::int32_t x, std::int32_t y)>;  // returns 0xRRGGBB

  // The contents of one buffer.
  struct Update {
    Picture picture{};                     // empty for a buffer without pixels, which reports only the pointer
    std::uint32_t cursorId = 1;            // 0 if the pointer is on another monitor
    ScreenPoint pointer{};                 // in frame pixels
    std::optional<std::int32_t> stride{};  // a false stride for the buffer to state
    std::optional<std::uint32_t> offset{};
    std::optional<std::uint32_t> bytes{};
  };

  // Throws if the daemon refuses it. `format` is SPA_VIDEO_FORMAT_BGRx or a similar constant.
  ScreenProducer(const PipeWireDaemon& daemon, Size size, std::uint32_t format = SPA_VIDEO_FORMAT_BGRx);
  ScreenProducer(const ScreenProducer&) = delete;
  ScreenProducer& operator=(const ScreenProducer&) = delete;
  ~ScreenProducer();

  std::uint32_t node() const { return node_; }

  // The size applies from the next update on.
  void setSize(Size size);

  // Waits for a receiver, and until the last update has been sent, and then sends. False if that takes longer than
  // `longest`.
  bool send(const Update& update, std::chrono::milliseconds longest = std::chrono::seconds(5));

  // Waits until there is a receiver, or none if not `wanted`. False if that takes longer than `longest`.
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

  // The lock of the connection guards these members.
  Size size_;
  std::uint32_t format_;
  Size agreedSize_;
  bool isReceived_ = false;
  bool isSending_ = false;
};

}  // namespace tavrelkin::test
