#pragma once

#include <chrono>
#include <string>
#include <vector>

#include "driver/Session.h"

namespace tavrelkin::test {

// A Wayland session: the program's windows are on an X server as ever, but the screen that it reads is one that a
// played desktop casts, and whose every pixel is known; see PlayedDesktop.
class PlayedSession : public Session {
 public:
  using TimePoint = std::chrono::steady_clock::time_point;

  PlayedSession();

  // Has the desktop obey these lines, one after the other; returns when it has. Throws where it does not know a line.
  void cast(const std::vector<std::string>& lines);

  // The same in two steps for one line: tell() returns at once, and waitForAnswer() gives the moment at which the
  // desktop had done it. Of use where something is to be watched meanwhile.
  void tell(const std::string& line);
  TimePoint waitForAnswer();

 private:
  const std::string fifo_ = home.path() / "desktop";
  Process desktop_;
  std::size_t answers_ = 1;
};

}  // namespace tavrelkin::test
