#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <optional>
#include <vector>

#include <xcb/xcb.h>

#include "runtime/desktop/Desktop.h"
#include "runtime/desktop/x11/PixelFormat.h"
#include "runtime/desktop/x11/SharedSegment.h"

namespace tavrelkin {

// How the server stores the pixels of the root window in an image of the format ZPixmap. Nothing if PixelFormat does
// not support it.
std::optional<PixelFormat> rootPixelFormat(const xcb_setup_t& setup, const xcb_screen_t& screen);

// A rectangle in physical pixels of the screen. It is empty if the width or the height is zero or less.
struct PixelRect {
  std::int32_t left = 0;
  std::int32_t top = 0;
  std::int32_t width = 0;
  std::int32_t height = 0;

  bool isEmpty() const { return width <= 0 || height <= 0; }

  // Works for any point; the rectangle must not have a negative size. Computes unsigned, since the difference may not
  // fit.
  bool contains(ScreenPoint at) const {
    const auto distance = [](std::int32_t from, std::int32_t to) {
      return static_cast<std::uint32_t>(to) - static_cast<std::uint32_t>(from);
    };
    return distance(left, at.x) < static_cast<std::uint32_t>(width) &&
           distance(top, at.y) < static_cast<std::uint32_t>(height);
  }
};

// Reads the visible contents of the root window, which is the whole screen, one block of pixels at a time.
class RootCapture {
 public:
  // How many pixels a block extends to each side of the pixel that it is captured for. A preview of 103 x 49 pixels
  // that is read from its middle comes from a single block.
  static constexpr std::int32_t kReachX = 52;
  static constexpr std::int32_t kReachY = 26;

  RootCapture(xcb_connection_t* connection, const xcb_screen_t& screen, const PixelFormat& format);

  // Sets the size of the root window in pixels. A size of zero by zero makes the whole screen black.
  void setRootSize(std::int32_t width, std::int32_t height);

  // Forgets the block.
  void drop() { block_.width = 0; }

  // The pixel at `at` in the block as 0xRRGGBB; null if the block does not contain `at`.
  const std::uint32_t* find(ScreenPoint at) const {
    if (!block_.contains(at)) return nullptr;
    return &pixels_[static_cast<std::size_t>(at.y - block_.top) * static_cast<std::size_t>(block_.width) +
                    static_cast<std::size_t>(at.x - block_.left)];
  }

  bool isOnScreen(ScreenPoint at) const { return rootRect_.contains(at); }

  // Captures a block that contains `at`; the block is black if the server refuses. Afterwards find() returns null only
  // if `at` is off the screen. If the previous block is near, the new block covers it too, so that a scan that starts
  // in a corner does not need a new block for each change of direction.
  void take(ScreenPoint at);

 private:
  bool capture(const PixelRect& rect);
  bool captureShared(const PixelRect& rect);
  bool capturePlain(const PixelRect& rect);
  void keep(const PixelRect& rect, const std::uint8_t* image);
  void keepBlack(const PixelRect& rect);
  bool askRootSize();

  xcb_connection_t* connection_;
  xcb_window_t root_;
  PixelFormat format_;
  PixelRect rootRect_;
  std::unique_ptr<SharedSegment> segment_;
  PixelRect block_;
  std::vector<std::uint32_t> pixels_;  // row after row
};

}  // namespace tavrelkin
