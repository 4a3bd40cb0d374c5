#pragma once

#include <cstdint>
#include <functional>
#include <string>
#include <vector>

#include "driver/X11Client.h"
#include "runtime/desktop/Desktop.h"

namespace tavrelkin::test {

// The windows on a display as its window manager lists them, and what a user does with a task bar. A window that has
// been closed meanwhile has no title, position or size.
class Windows {
 public:
  explicit Windows(X11Client& client) : client_(client) {}

  // All windows of all programs, and the windows whose title has this beginning; the oldest first.
  std::vector<xcb_window_t> all() const { return numbers(client_.root(), "_NET_CLIENT_LIST"); }
  std::vector<xcb_window_t> titled(const std::string& beginning) const;

  // The bytes, or the numbers, of a property; empty if the window does not have it.
  std::string property(xcb_window_t window, const std::string& name) const;
  std::vector<std::uint32_t> numbers(xcb_window_t window, const std::string& name) const;

  std::string title(xcb_window_t window) const { return property(window, "_NET_WM_NAME"); }
  // The area inside the frame, in pixels of the screen.
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

// The user's hand on mouse and keyboard. Positions are in pixels of the screen.
class Hand {
 public:
  explicit Hand(X11Client& client) : client_(client) {}

  void moveTo(ScreenPoint to) { client_.movePointer(to.x, to.y); }
  void pressButton() { client_.fake(XCB_BUTTON_PRESS, 1); }
  void releaseButton() { client_.fake(XCB_BUTTON_RELEASE, 1); }
  void click(ScreenPoint at);
  // Presses at one position and releases at another, with a few positions between. Calls `before` before the release.
  void drag(ScreenPoint from, ScreenPoint to, const std::function<void()>& before = {});
  // The same with the key held that starts a drag of a colour.
  void altDrag(ScreenPoint from, ScreenPoint to, const std::function<void()>& before = {});

  // Waits as long as a person does at least between two key presses. A menu that was opened is visible afterwards.
  void rest() const;

  // Presses keys such as "Ctrl+Alt+P" or "Return" for the window that has the keyboard.
  void keys(const std::string& chord);
  void press(const std::string& key) { client_.fake(XCB_KEY_PRESS, keyCode(key)); }
  void release(const std::string& key) { client_.fake(XCB_KEY_RELEASE, keyCode(key)); }

  // The key's code on this keyboard; throws if there is no key of that name.
  std::uint8_t keyCode(const std::string& name) const;

 private:
  X11Client& client_;
};

}  // namespace tavrelkin::test
