#pragma once

#include <chrono>
#include <string>
#include <vector>

#include "driver/Session.h"

namespace tavrelkin::test {

// A Wayland session. The program's windows are on an X server as usual, but a played desktop casts the screen that the
// program reads. Every pixel of that screen is known; see PlayedDesktop.
class PlayedSession : public Session {
 public:
  using TimePoint = std::chrono::steady_clock::time_point;

  PlayedSession();

  // Makes the desktop obey these lines in order; returns when it has done so. Throws if it does not know a line.
  void cast(const std::vector<std::string>& lines);

  // The same in two steps for one line: tell() returns at once, and waitForAnswer() returns the time at which the
  // desktop had obeyed. A test can watch the program between the two.
  void tell(const std::string& line);
  TimePoint waitForAnswer();

 private:
  const std::string fifo_ = home.path() / "desktop";
  Process desktop_;
  std::size_t answers_ = 1;
};

}  // namespace tavrelkin::test
