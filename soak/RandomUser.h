#pragma once

#include <cstdint>
#include <random>
#include <string>
#include <vector>

#include "driver/Session.h"

namespace tavrelkin::test {

// A user who does random things with the program's windows, and never ends the program.
class RandomUser {
 public:
  RandomUser(Session& session, std::uint32_t seed) : session_(session), random_(seed) {}

  // Does one random thing with a random window.
  void act();

  // Closes all windows except a new tool window; false if the program doesn't obey.
  bool tidyUp();

 private:
  // A random number from 0 to `below` - 1; 0 if `below` is not positive.
  int number(int below) { return below > 0 ? static_cast<int>(random_() % static_cast<std::uint32_t>(below)) : 0; }
  static bool isTool(const std::string& title) { return title.starts_with("Color: "); }
  static bool isPalette(const std::string& title) { return title.starts_with("Untitled") || title.ends_with(".aco"); }
  static bool isDialog(const std::string& title) {
    return !isTool(title) && !isPalette(title) && !title.starts_with("Color Blind");
  }
  template <class T>
  T oneOf(const std::vector<T>& all) {
    return all[random_() % all.size()];
  }
  ScreenPoint placeOn(xcb_window_t window);
  ScreenPoint anywhere();

  void press(xcb_window_t window);
  void useMouse(xcb_window_t window);
  void openMenu(xcb_window_t window);
  void moveOrMinimise(xcb_window_t window);
  bool leaveDialog();

  Session& session_;
  std::mt19937 random_;
};

}  // namespace tavrelkin::test
