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
  // Presses at one place and lets go at another, by way of a few places between; what an Alt-drag starts with is its
  // own.
  void drag(ScreenPoint from, ScreenPoint to);
  void altDrag(ScreenPoint from, ScreenPoint to);
  // Only up to the place: the button, and Alt, stay down.
  void beginAltDrag(ScreenPoint from, ScreenPoint to);
  void endAltDrag();

  // As long as a person takes at least between two strokes; a menu that was opened is there afterwards.
  void rest() const;

  // Such as "Ctrl+Alt+P" or "Return": goes to whatever has the keyboard.
  void keys(const std::string& chord);

 private:
  void pull(ScreenPoint from, ScreenPoint to);
  std::uint8_t keyCode(const std::string& name) const;

  X11Client& client_;
};

}  // namespace tavrelkin::test
