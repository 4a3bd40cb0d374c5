#pragma once

#include <cstdint>
#include <functional>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "driver/Session.h"

namespace tavrelkin::test {

// One of the program's windows. Positions in it start at the top left corner of its content, below the menu bar, in
// pixels at a scale of 100 %.
class ProgramWindow {
 public:
  // `contentHeight` is in pixels at a scale of 100 %.
  ProgramWindow(Session& session, xcb_window_t window, int contentHeight)
      : session_(session), contentHeight_(contentHeight), window_(window) {}

  xcb_window_t window() const { return window_; }
  std::string title() const { return session_.windows.title(window_); }
  ScreenPoint onScreen(int x, int y) const;
  // The colour that one pixel of its content shows.
  std::uint32_t shows(int x, int y) const;

  // Moves the window; returns when it has arrived.
  void moveTo(std::int16_t x, std::int16_t y);
  // Brings the window to the front and presses the keys.
  void keys(const std::string& chord);
  void click(int x, int y) { session_.hand.click(onScreen(x, y)); }
  // Opens the menu whose title is at `x` in the menu bar, selects an item with `key` ("Down" for the first, "Up" for
  // the last), and chooses it.
  void choose(int x, const std::string& key);
  // Copies a text in another program and pastes it into the window.
  void paste(const std::string& text);

  // Whether the title, or a pixel of the content, soon has the expected value.
  testing::AssertionResult getsTitle(const std::string& expected) const;
  testing::AssertionResult gets(std::uint32_t rgb, int x, int y) const;

 protected:
  // The number of pixels of the screen for this many pixels at a scale of 100 %.
  int scaled(int pixels) const;

  Session& session_;
  int contentHeight_;
  double scale_ = 1;

 private:
  xcb_window_t window_;
};

// The keys, or a menu, have opened the window before.
class Palette : public ProgramWindow {
 public:
  Palette(Session& session, const std::string& title) : ProgramWindow(session, session.waitForWindow(title), 161) {
    session.bringToFront(window());
  }

  static ScreenPoint cell(int index) { return {20 + index % 30 * 13 + 6, 7 + index / 30 * 13 + 6}; }
  ScreenPoint onCell(int index) const { return onScreen(cell(index).x, cell(index).y); }
  testing::AssertionResult getsCell(std::uint32_t rgb, int index) const {
    return gets(rgb, cell(index).x, cell(index).y);
  }
  testing::AssertionResult put(const std::string& text, std::uint32_t rgb, int index) {
    session_.bringToFront(window());
    session_.hand.click(onCell(index));
    paste(text);
    return getsCell(rgb, index);
  }
  void closeByKeys() {
    keys("Ctrl+W");
    EXPECT_TRUE(waitUntil([this] { return title().empty(); }));
  }
};

using Pixels = std::vector<std::uint32_t>;  // 0xRRGGBB, row by row

// The expected look of the preview.
struct Preview {
  static constexpr int kWidth = 408;
  static constexpr int kHeight = 192;

  std::function<std::uint32_t(int x, int y)> screen;  // 0xRRGGBB, as the screen shows it
  ScreenPoint centre;
  int zoom = 1;  // the slider's step, 1 to 3

  int cell() const { return 4 * zoom; }
  // The pixel of the screen that this pixel of the preview enlarges.
  ScreenPoint enlarged(int x, int y) const;
  // The expected colour of a pixel of the preview: a cell, the marker or the frame.
  std::uint32_t color(int x, int y) const;
};

// Another program's window above all others. Each of its pixels has a known colour of its own, so that a wrong position
// shows.
class ForeignWindow {
 public:
  ForeignWindow(X11Client& client, const Area& area) : client_(client), area_(area), window_(client.open(area)) {
    paint(0);
  }
  ForeignWindow(const ForeignWindow&) = delete;
  ForeignWindow& operator=(const ForeignWindow&) = delete;
  ~ForeignWindow() { client_.close(window_); }

  // Paints the window; each number gives different colours.
  void paint(std::uint32_t number) {
    number_ = number;
    client_.paint(window_, area_, [this](int x, int y) { return color(x, y); });
  }

  // The colour that the screen shows for this window at a position on the screen.
  std::uint32_t shown(ScreenPoint at) const { return client_.shown(color(at.x, at.y)); }

  // The expected preview of a position that is far enough from the window's edges.
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
  // Waits until the session's first tool window has the focus, and moves it to the screen's top left corner.
  explicit ToolWindow(Session& session);
  ToolWindow(Session& session, xcb_window_t window);

  // Copies a colour in another program and pastes it. Succeeds if the window takes the colour; by then the window has
  // also handled all earlier input.
  testing::AssertionResult paste(std::uint32_t rgb);

  void unfold();
  // Moves the zoom slider of an unfolded window from one step to a higher one; steps are 1 to 3.
  void zoomIn(int from, int to);

  // The position of a column, 0 to 120, in the middle row of a bar of an unfolded window. Bars are numbered from 0,
  // red, to 5, value.
  ScreenPoint onBar(int bar, int column) const;
  ScreenPoint onSwatch() const { return onScreen(75, 296); }

  // Where a pixel of the preview begins on the screen, and what the whole preview shows there.
  ScreenPoint onPreview(int x, int y) const;
  Pixels preview() const;

  // Sets the expected scale: how many of the screen's pixels one pixel of the window takes, across and down; it is 1 at
  // first. Succeeds if the window soon has that size.
  testing::AssertionResult getsScale(double scale);
  bool hasItsSize() const;

  // Whether the title, or the preview, soon has the expected value.
  testing::AssertionResult getsTitleOf(std::uint32_t rgb) const { return getsTitle(titleOf(rgb)); }
  testing::AssertionResult getsPreview(const Preview& expected) const;

 private:
  Pixels enlarged(const Preview& preview) const;
};

// A session with its tool window, which is folded at first, or unfolded.
struct ToolWindowTest : testing::Test {
  Session session_;
  ToolWindow tool_{session_};
};
struct UnfoldedToolWindowTest : ToolWindowTest {
  void SetUp() override { tool_.unfold(); }
};

}  // namespace tavrelkin::test
