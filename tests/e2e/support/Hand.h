#pragma once

#include <string>

#include "e2e/X11Client.h"
#include "runtime/desktop/Desktop.h"

namespace tavrelkin::test {

// The user's hand on mouse and keyboard. Places are pixels of the screen.
class Hand {
 public:
  explicit Hand(X11Client& client) : client_(client) {}

  void moveTo(ScreenPoint to) { client_.movePointer(to.x, to.y); }
  void pressButton();
  void releaseButton();
  void click(ScreenPoint at);

  // Such as "Ctrl+Alt+P" or "Return": goes to whatever has the keyboard.
  void keys(const std::string& chord);

 private:
  std::uint8_t keyCode(const std::string& name) const;

  X11Client& client_;
};

}  // namespace tavrelkin::test
