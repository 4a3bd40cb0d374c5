#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "e2e/X11Client.h"
#include "e2e/support/Hand.h"
#include "e2e/support/Home.h"
#include "e2e/support/MessageBus.h"
#include "e2e/support/OutsideClipboard.h"
#include "e2e/support/Process.h"
#include "e2e/support/WindowManager.h"
#include "e2e/support/Windows.h"
#include "e2e/support/XServer.h"

namespace tavrelkin::test {

// A desktop session of its own, and the program in it, which has just been started.
struct Session {
  struct Options {
    XServer::Options server{};
    bool messageBus = false;
    std::vector<std::string> environment{};  // more variables for the program, in the form NAME=value
    int dotsPerInch = 0;                     // as the desktop's settings say it; nothing where 0
    std::uint16_t leftMonitor = 0;           // the width of one beside the main one, if any
  };

  // What starts the program.
  static std::vector<std::string> command();

  Session() : Session(Options()) {}
  explicit Session(const Options& options);

  // The first window with such a title, as soon as there is one.
  xcb_window_t waitForWindow(const std::string& titleBeginning);
  // The newest window with such a title, as soon as there are so many of them.
  xcb_window_t waitForWindow(const std::string& titleBeginning, std::size_t count);
  // Returns when the window has the keyboard.
  void bringToFront(xcb_window_t window);

  Home home;  // the program's
  XServer server;
  std::optional<MessageBus> bus;
  X11Client client;
  Windows windows;
  Hand hand;
  WindowManager manager;
  OutsideClipboard clipboard;
  Process program;
};

}  // namespace tavrelkin::test
