#pragma once

#include <string>
#include <vector>

#include "e2e/support/Home.h"
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
  ~XServer();

  // As in DISPLAY.
  const std::string& display() const { return display_; }

  // Ends it at once, as in a crash.
  void kill();

 private:
  Home home_;
  Process process_;
  std::string display_;
};

}  // namespace tavrelkin::test
