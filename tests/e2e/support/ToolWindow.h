#pragma once

#include <string>

#include <gtest/gtest.h>

#include "e2e/support/Preview.h"
#include "e2e/support/ProgramWindow.h"

namespace tavrelkin::test {

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

  // Where a pixel of the preview begins on the screen, and what the whole preview shows there, row by row.
  ScreenPoint onPreview(int x, int y) const;
  Pixels preview() const;

  // How many of the screen's pixels it takes for one of its own, across and down: 1 until this is called. Whether it
  // comes to have that size before long.
  testing::AssertionResult getsScale(double scale);
  bool hasItsSize() const;

  // Whether title, or preview, become so before long. Each channel of the preview may differ by `tolerance`.
  testing::AssertionResult getsTitleOf(std::uint32_t rgb) const;
  testing::AssertionResult getsPreview(const Preview& expected, int tolerance = 0) const;

 private:
  Pixels enlarged(const Pixels& preview) const;
};

// A session with its tool window unfolded.
class UnfoldedToolWindowTest : public testing::Test {
 protected:
  void SetUp() override { tool_.unfold(); }

  Session session_;
  ToolWindow tool_{session_};
};

// The window's title for a colour.
std::string titleOf(std::uint32_t rgb);

}  // namespace tavrelkin::test
