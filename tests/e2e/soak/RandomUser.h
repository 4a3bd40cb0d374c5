#pragma once

#include <cstdint>
#include <initializer_list>
#include <random>
#include <string>
#include <vector>

#include "e2e/support/Session.h"

namespace tavrelkin::test {

// A user who does anything with the program's windows, as the numbers fall, and never quits it.
class RandomUser {
 public:
  RandomUser(Session& session, std::uint32_t seed) : session_(session), random_(seed) {}

  // One act, with any window.
  void act();

  // Closes all windows but a new tool window; false where the program doesn't follow.
  bool tidyUp();

 private:
  enum class Kind { kTool, kPalette, kSimulator, kDialog };
  struct Shown {
    xcb_window_t window;
    Kind kind;
  };

  std::vector<Shown> shown() const;
  int number(int below) { return static_cast<int>(random_() % static_cast<std::uint32_t>(below)); }
  std::string oneOf(std::initializer_list<const char*> texts);
  ScreenPoint placeOn(xcb_window_t window);
  ScreenPoint anywhere();

  void actOn(const Shown& chosen);
  void useMouse(const Shown& chosen);
  void press(const Shown& chosen);
  void openMenu(xcb_window_t window);
  void moveOrMinimise(xcb_window_t window);
  void leave(xcb_window_t dialog);
  bool closeAllBut(xcb_window_t kept);

  Session& session_;
  std::mt19937 random_;
};

}  // namespace tavrelkin::test
