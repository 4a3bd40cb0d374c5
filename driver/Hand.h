#pragma once

#include <cstdint>
#include <functional>
#include <string>
#include <vector>

#include "driver/X11Client.h"
#include "runtime/desktop/Desktop.h"

namespace tavrelkin::test {

// The windows on a display as its window manager sees them, and what a user does by a task bar. A window that has gone
// meanwhile has no title, no place and no size.
class Windows {
 public:
  explicit Windows(X11Client& client) : client_(client) {}

  // All windows of all programs, and those whose title begins so, oldest first.
  std::vector<xcb_window_t> all() const { return numbers(client_.root(), "_NET_CLIENT_LIST"); }
  std::vector<xcb_window_t> titled(const std::string& beginning) const;

  // The bytes, or the numbers, of a property; none if it is not there.
  std::string property(xcb_window_t window, const std::string& name) const;
  std::vector<std::uint32_t> numbers(xcb_window_t window, const std::string& name) const;

  std::string title(xcb_window_t window) const { return property(window, "_NET_WM_NAME"); }
  // Inside the frame, in pixels of the screen.
  Area area(xcb_window_t window) const;
  bool hasKeyboard(xcb_window_t window) const;
  bool isMinimised(xcb_window_t window) const;

  void activate(xcb_window_t window);
  void close(xcb_window_t window);
  void minimise(xcb_window_t window);
  void moveTo(xcb_window_t window, std::int16_t x, std::int16_t y);

 private:
  X11Client& client_;
};

// The user's hand on mouse and keyboard. Places are pixels of the screen.
class Hand {
 public:
  explicit Hand(X11Client& client) : client_(client) {}

  void moveTo(ScreenPoint to) { client_.movePointer(to.x, to.y); }
  void pressButton() { client_.fake(XCB_BUTTON_PRESS, 1); }
  void releaseButton() { client_.fake(XCB_BUTTON_RELEASE, 1); }
  void click(ScreenPoint at);
  // Presses at one place and lets go at another, by way of a few places between; does what is given before it lets go.
  void drag(ScreenPoint from, ScreenPoint to, const std::function<void()>& before = {});
  // With the key that a drag of a colour starts with.
  void altDrag(ScreenPoint from, ScreenPoint to, const std::function<void()>& before = {});

  // As long as a person takes at least between two strokes; a menu that was opened is there afterwards.
  void rest() const;

  // Such as "Ctrl+Alt+P" or "Return": goes to whatever has the keyboard.
  void keys(const std::string& chord);
  void press(const std::string& key) { client_.fake(XCB_KEY_PRESS, keyCode(key)); }
  void release(const std::string& key) { client_.fake(XCB_KEY_RELEASE, keyCode(key)); }

  // The key's number on this keyboard; throws where it has none of that name.
  std::uint8_t keyCode(const std::string& name) const;

 private:
  X11Client& client_;
};

}  // namespace tavrelkin::test
