#pragma once

#include <cstdint>
#include <functional>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "driver/Session.h"

namespace tavrelkin::test {

// One of the program's windows. Places in it count from the top left corner of its content, below the menu bar, in
// pixels at a scale of 100 %.
class ProgramWindow {
 public:
  // `contentHeight` is in pixels at a scale of 100 %.
  ProgramWindow(Session& session, xcb_window_t window, int contentHeight)
      : session_(session), contentHeight_(contentHeight), window_(window) {}

  xcb_window_t window() const { return window_; }
  std::string title() const { return session_.windows.title(window_); }
  ScreenPoint onScreen(int x, int y) const;
  // What one pixel of its content shows.
  std::uint32_t shows(int x, int y) const;

  // Moves it there; returns when it is there.
  void moveTo(std::int16_t x, std::int16_t y);
  // Brings it to the front first.
  void keys(const std::string& chord);
  void click(int x, int y) { session_.hand.click(onScreen(x, y)); }
  // Opens the menu whose title lies at `x` in the menu bar, and goes from there with a key: "Down" to its first item,
  // "Up" to its last, which is chosen.
  void choose(int x, const std::string& key);
  // Another program copies a text, and the window pastes it.
  void paste(const std::string& text);

  // Whether title, or a pixel of the content, become so before long.
  testing::AssertionResult getsTitle(const std::string& expected) const;
  testing::AssertionResult gets(std::uint32_t rgb, int x, int y) const;

 protected:
  // Where something begins that has so many pixels before it.
  int scaled(int pixels) const;

  Session& session_;
  int contentHeight_;
  double scale_ = 1;

 private:
  xcb_window_t window_;
};

using Pixels = std::vector<std::uint32_t>;  // 0xRRGGBB, row by row

// What the preview should look like.
struct Preview {
  static constexpr int kWidth = 408;
  static constexpr int kHeight = 192;

  std::function<std::uint32_t(int x, int y)> screen;  // 0xRRGGBB, as shown
  ScreenPoint centre;
  int zoom = 1;  // step of the slider, 1 to 3

  int cell() const { return 4 * zoom; }
  // The pixel of the screen that a pixel of the preview enlarges.
  ScreenPoint enlarged(int x, int y) const;
  // Of one of its pixels: cells, marker and frame.
  std::uint32_t color(int x, int y) const;
};

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

// A tool window's title for a colour.
std::string titleOf(std::uint32_t rgb);

// One of the program's tool windows.
class ToolWindow : public ProgramWindow {
 public:
  // The session's first one, as soon as it has the keyboard; it is moved to the screen's top left corner.
  explicit ToolWindow(Session& session);
  ToolWindow(Session& session, xcb_window_t window);

  // Another program copies a colour, and the window pastes it: whether it comes to have it. It has then done all that
  // it was asked for before, too.
  testing::AssertionResult paste(std::uint32_t rgb);

  void unfold();
  // Step 1 to 3, in an unfolded window whose step is lower.
  void zoomIn(int from, int to);

  // Of an unfolded window: a column of a bar, 0 to 120, in its middle row. Bars are 0 red to 5 value.
  ScreenPoint onBar(int bar, int column) const;
  ScreenPoint onSwatch() const { return onScreen(75, 296); }

  // Where a pixel of the preview begins on the screen, and what the whole preview shows there.
  ScreenPoint onPreview(int x, int y) const;
  Pixels preview() const;

  // How many of the screen's pixels it takes for one of its own, across and down: 1 until this is called. Whether it
  // comes to have that size before long.
  testing::AssertionResult getsScale(double scale);
  bool hasItsSize() const;

  // Whether title, or preview, become so before long.
  testing::AssertionResult getsTitleOf(std::uint32_t rgb) const { return getsTitle(titleOf(rgb)); }
  testing::AssertionResult getsPreview(const Preview& expected) const;

 private:
  Pixels enlarged(const Preview& preview) const;
};

// A session with its tool window, folded as it comes up or unfolded.
struct ToolWindowTest : testing::Test {
  Session session_;
  ToolWindow tool_{session_};
};
struct UnfoldedToolWindowTest : ToolWindowTest {
  void SetUp() override { tool_.unfold(); }
};

}  // namespace tavrelkin::test
