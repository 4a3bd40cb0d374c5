#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <optional>
#include <span>
#include <vector>

#include "runtime/desktop/portal/ScreenCast.h"

namespace tavrelkin {

// The order of the channels in memory. A fourth, unused byte follows.
enum class ChannelOrder { bgr, rgb };

// A picture of a whole monitor as it arrives: lines of `width` pixels with 4 bytes each. The stride is the number of
// bytes from the start of a line to the start of the next. The numbers and the bytes come from another program, and may
// contradict each other.
struct ScreenFrame {
  ChannelOrder order = ChannelOrder::bgr;
  std::int64_t width = 0;
  std::int64_t height = 0;
  std::int64_t stride = 0;
  std::span<const std::uint8_t> bytes;
};

// The content of the monitors of a screen cast: the last full frame of each stream, and the last place of the pointer
// that any stream reported. A copy is cheap: it shares the frames, and keeps them when the original takes new ones. Not
// thread-safe, but one thread may read a copy while another changes the original.
//
// Places on the screen are in frame pixels. A stream's scale is the number of frame pixels per logical pixel. A
// stream's origin is its logical position times the largest scale of all streams. So no two monitors overlap, whatever
// their scales, but there may be gaps between them. If one of several streams has no position or size, the streams
// stand side by side in order. A single stream without a position is at 0, 0.
class ScreenModel {
 public:
  static constexpr std::int32_t kLongestSide = 16384;
  static constexpr std::int64_t kMostPixels = std::int64_t{64} * 1024 * 1024;

  explicit ScreenModel(const std::vector<CastStream>& streams);

  std::size_t streamCount() const { return monitors_.size(); }

  // Copies the frame. Returns false and changes nothing if there is no such stream, if a size is not positive or too
  // large, if the stride is shorter than a line, or if the bytes are too few for the lines.
  bool putFrame(std::size_t stream, const ScreenFrame& frame);

  // Records that the pointer is on this stream, at `place` in its frame's pixels. Returns false and changes nothing if
  // there is no such stream, or if the place is outside the frame: the pointer is then on the border, and belongs to a
  // neighbouring monitor. No call is needed if a stream reports that the pointer is not on it: the pointer may be on
  // another stream, or on no stream.
  bool putPointer(std::size_t stream, ScreenPoint place);

  // Whether each stream has had a frame.
  bool hasFrames() const;

  // The pixel as 0xRRGGBB. Black off all monitors, and on a monitor without a frame.
  std::uint32_t pixel(ScreenPoint at);

  // The last place of the pointer; nothing until a stream has reported one.
  std::optional<ScreenPoint> pointer() const;

  // Frame pixels per logical pixel on the stream that had the pointer last; 1 if that is not known.
  double pointerScale() const;

 private:
  // Frame pixels per logical pixel, as a fraction, so that neighbours stay neighbours when they are scaled.
  struct Scale {
    std::int64_t frame = 1;
    std::int64_t logical = 1;
    bool operator<(const Scale& other) const { return frame * other.logical < other.frame * logical; }
    std::int32_t times(std::int32_t length) const;
  };

  struct Monitor {
    CastStream stream;
    ScreenPoint origin;
    ChannelOrder order = ChannelOrder::bgr;
    std::int32_t width = 0;
    std::int32_t height = 0;
    std::shared_ptr<std::uint8_t[]> bytes;  // lines without padding, 4 bytes a pixel; never changed while it is shared

    bool hasFrame() const { return width > 0; }
    Scale scale() const;
    bool contains(ScreenPoint at) const;
    std::uint32_t pixel(ScreenPoint at) const;
    std::uint8_t* bytesToWrite(std::size_t count);
  };

  void arrange();

  std::vector<Monitor> monitors_;
  bool isSideBySide_ = false;
  std::size_t lastFound_ = 0;                // an index of monitors_; most reads are near the previous one
  std::size_t pointerOwner_ = 0;             // the stream that had the pointer last
  std::optional<ScreenPoint> pointerPlace_;  // in pixels of the owner's frame
};

}  // namespace tavrelkin
