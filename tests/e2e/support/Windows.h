#pragma once

#include <string>
#include <vector>

#include "e2e/X11Client.h"

namespace tavrelkin::test {

// The windows on a display as its window manager sees them, and what a user does by a task bar. A window that has gone
// meanwhile has no title, no place and no size.
class Windows {
 public:
  explicit Windows(X11Client& client) : client_(client) {}

  bool areManaged() const;

  // All windows of all programs, and those whose title begins so, oldest first.
  std::vector<xcb_window_t> all() const;
  std::vector<xcb_window_t> titled(const std::string& beginning) const;

  std::string title(xcb_window_t window) const;
  // The name and the class in WM_CLASS, with a zero byte after each.
  std::string className(xcb_window_t window) const;
  // The width of its first icon in pixels; 0 where it has none.
  std::uint32_t iconWidth(xcb_window_t window) const;
  // Inside the frame, in pixels of the screen.
  Area area(xcb_window_t window) const;
  bool hasKeyboard(xcb_window_t window) const;
  bool isMinimised(xcb_window_t window) const;

  void activate(xcb_window_t window);
  void close(xcb_window_t window);
  void minimise(xcb_window_t window);
  void moveTo(xcb_window_t window, std::int16_t x, std::int16_t y);

 private:
  xcb_atom_t atom(const std::string& name) const;
  // The bytes of a property; none if it is not there.
  std::string property(xcb_window_t window, const std::string& name) const;
  std::vector<std::uint32_t> numbers(xcb_window_t window, const std::string& name) const;
  void ask(xcb_window_t window, const std::string& what, std::uint32_t first);

  X11Client& client_;
};

}  // namespace tavrelkin::test
