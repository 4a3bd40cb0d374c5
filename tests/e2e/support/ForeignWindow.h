#pragma once

#include <cstdint>

#include "e2e/support/ToolWindow.h"

namespace tavrelkin::test {

// Another program's window, above all others, that shows known pixels: each its own colour, so that any mix-up of
// places shows.
class ForeignWindow {
 public:
  ForeignWindow(X11Client& client, const Area& area) : client_(client), area_(area), window_(client.open(area)) {
    paint(0);
  }
  ForeignWindow(const ForeignWindow&) = delete;
  ForeignWindow& operator=(const ForeignWindow&) = delete;
  ~ForeignWindow() { client_.close(window_); }

  // Shows other pixels for each number.
  void paint(std::uint32_t number) {
    number_ = number;
    client_.paint(window_, area_, [this](int x, int y) { return color(x, y); });
  }

  // What it shows at a place on the screen.
  std::uint32_t shown(ScreenPoint at) const { return client_.shown(color(at.x, at.y)); }

  // The preview of a place that is far enough from its edges.
  Preview previewAt(ScreenPoint centre, int zoom = 1) const {
    return {.screen = [this](int x, int y) { return shown({x, y}); }, .centre = centre, .zoom = zoom};
  }

 private:
  std::uint32_t color(int x, int y) const {
    const std::uint32_t place = static_cast<std::uint32_t>(x) * 4096 + static_cast<std::uint32_t>(y);
    return ((place ^ number_ * 0x5BD1E995U) * 2654435761U) >> 8;
  }

  X11Client& client_;
  const Area area_;
  const xcb_window_t window_;
  std::uint32_t number_ = 0;
};

}  // namespace tavrelkin::test
