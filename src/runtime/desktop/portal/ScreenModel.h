#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <optional>
#include <span>
#include <vector>

#include "runtime/desktop/portal/ScreenCast.h"

namespace tavrelkin {

// The order of the channels in memory; a fourth byte follows that means nothing.
enum class ChannelOrder { bgr, rgb };

// A picture of a whole monitor, as it arrives: lines of `width` pixels of 4 bytes, and `stride` bytes from the start of
// a line to that of the next. The numbers and the bytes come from another program, and may contradict each other.
struct ScreenFrame {
  ChannelOrder order = ChannelOrder::bgr;
  std::int64_t width = 0;
  std::int64_t height = 0;
  std::int64_t stride = 0;
  std::span<const std::uint8_t> bytes;
};

// What is on the monitors of a screen cast, and where the pointer is: the last full frame of each stream, and the last
// place that any of them gave for the pointer. A copy is cheap: it shares the frames, and keeps those that it has when
// the original takes new ones. Not thread-safe, but a copy may be read while another thread changes the original.
//
// Places on the screen are in frame pixels. A stream lies at its logical position times the largest scale of all
// streams, a scale being frame pixels per logical pixel: so no two monitors overlap, whatever their scales, and gaps
// may open between them. Where a stream without a position or size is among several, the streams stand side by side in
// their order; a single stream without a position is at 0, 0.
class ScreenModel {
 public:
  static constexpr std::int32_t kLongestSide = 16384;
  static constexpr std::int64_t kMostPixels = std::int64_t{64} * 1024 * 1024;

  explicit ScreenModel(const std::vector<CastStream>& streams);

  std::size_t streamCount() const { return monitors_.size(); }

  // Copies the frame. False, and no change, where there is no such stream, where a size is not positive or too large,
  // where the stride is shorter than a line, or where the bytes are fewer than the lines take.
  bool putFrame(std::size_t stream, const ScreenFrame& frame);

  // The pointer is on this stream, `place` being in its frame's pixels. False, and no change, where there is no such
  // stream, and where the place is outside of its frame: the pointer is on the border then, and a neighbour has it. A
  // stream that says that it doesn't have the pointer changes nothing, since another one may have it, or none.
  bool putPointer(std::size_t stream, ScreenPoint place);

  // Whether each stream has had a frame.
  bool hasFrames() const;

  // The pixel as 0xRRGGBB. Black off all monitors, and on a monitor without a frame.
  std::uint32_t pixel(ScreenPoint at);

  // Where the pointer was last; nothing until a stream has said so.
  std::optional<ScreenPoint> pointer() const;

  // Frame pixels per logical pixel on the stream that the pointer was on last; 1 where that is not known.
  double pointerScale() const;

 private:
  // Frame pixels per logical pixel. A fraction, so that neighbours stay neighbours when they are scaled.
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
    std::shared_ptr<std::uint8_t[]> bytes;  // line after line, 4 for each pixel; never changed while it is shared

    bool hasFrame() const { return width > 0; }
    Scale scale() const;
    bool contains(ScreenPoint at) const;
    std::uint32_t pixel(ScreenPoint at) const;
    std::uint8_t* bytesToWrite(std::size_t count);
  };

  void arrange();

  std::vector<Monitor> monitors_;
  bool isSideBySide_ = false;
  std::size_t lastFound_ = 0;  // of monitors_: most reads are next to the one before
  std::size_t pointerOwner_ = 0;
  std::optional<ScreenPoint> pointerPlace_;  // in the owner's frame
};

}  // namespace tavrelkin
