#pragma once

#include <cstdint>
#include <string>

#include <gtest/gtest.h>

#include "e2e/support/Session.h"

namespace tavrelkin::test {

// One of the program's windows. Places in it count from the top left corner of its content, below the menu bar, in
// pixels at a scale of 100 %.
class ProgramWindow {
 public:
  // `contentHeight` is in pixels at a scale of 100 %.
  ProgramWindow(Session& session, xcb_window_t window, int contentHeight)
      : session_(session), window_(window), contentHeight_(contentHeight) {}

  xcb_window_t window() const { return window_; }
  std::string title() const { return session_.windows.title(window_); }
  ScreenPoint onScreen(int x, int y) const;
  // What one pixel of its content shows.
  std::uint32_t shows(int x, int y) const;

  // Moves it there; returns when it is there.
  void moveTo(std::int16_t x, std::int16_t y);
  // Brings it to the front first.
  void keys(const std::string& chord);
  void click(int x, int y);
  // Chooses the first item, or the last, of a menu, whose title lies at `x` in the menu bar.
  void chooseFirst(int x);
  void chooseLast(int x);

  // Whether title, or a pixel of the content, become so before long.
  testing::AssertionResult getsTitle(const std::string& expected) const;
  testing::AssertionResult gets(std::uint32_t rgb, int x, int y) const;

 protected:
  Session& session() const { return session_; }
  // Where something begins that has so many pixels before it.
  int scaled(int pixels) const;
  void setContentHeight(int pixels) { contentHeight_ = pixels; }
  void setScale(double scale) { scale_ = scale; }

 private:
  void choose(int x, const std::string& key);

  Session& session_;
  xcb_window_t window_;
  int contentHeight_;
  double scale_ = 1;
};

}  // namespace tavrelkin::test
