#pragma once

#include <string>
#include <vector>

#include "e2e/support/Process.h"

namespace tavrelkin::test {

// An X server with a screen in memory, under a display number that was free.
class XServer {
 public:
  struct Options {
    std::string screen = "1280x800x24";  // width, height and depth
    std::vector<std::string> arguments{};
  };

  // Throws if the server doesn't start, as when it doesn't know the depth.
  XServer() : XServer(Options()) {}
  explicit XServer(const Options& options);
  // In order, so that it removes its socket and its lock.
  ~XServer() { process_.end(SIGTERM); }

  // As in DISPLAY.
  const std::string& display() const { return display_; }
  // For programs on it that may share a home.
  std::vector<std::string> environment() const { return home_.environment(display_); }

  // Ends it at once, as in a crash.
  void kill() { process_.end(SIGKILL); }

 private:
  Home home_;
  Process process_;
  std::string display_;
};

// A window manager that leaves all keys and all clicks inside of windows to the programs.
class WindowManager {
 public:
  // Returns when the windows are managed.
  explicit WindowManager(const XServer& server);

 private:
  Process process_;
};

}  // namespace tavrelkin::test
