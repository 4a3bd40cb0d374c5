#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "driver/Hand.h"
#include "driver/Process.h"
#include "driver/X11Client.h"

namespace tavrelkin::test {

// An X server with a screen in memory, on an unused display number.
class XServer {
 public:
  struct Options {
    std::string screen = "1280x800x24";  // width, height and depth
    std::vector<std::string> arguments{};
  };

  // Throws if the server doesn't start, for example because it doesn't support the depth.
  XServer() : XServer(Options()) {}
  explicit XServer(const Options& options);
  // SIGTERM lets the server remove its socket and its lock.
  ~XServer() { process_.end(SIGTERM); }

  // The display's name, as in DISPLAY.
  const std::string& display() const { return display_; }
  // An environment for programs on this display that may share a home folder.
  std::vector<std::string> environment() const { return home_.environment(display_); }

  // Ends the server at once, as a crash does.
  void kill() { process_.end(SIGKILL); }

 private:
  Home home_;
  Process process_;
  std::string display_;
};

// A window manager that passes all keys, and all clicks inside windows, to the programs.
class WindowManager {
 public:
  // Returns when the manager handles new windows.
  explicit WindowManager(const XServer& server);

 private:
  Process process_;
};

// The clipboard as another program uses it.
class OutsideClipboard {
 public:
  OutsideClipboard(const XServer& server, X11Client& client) : server_(server), client_(client) {}

  // Offers the text until something else is copied or the object is destroyed.
  void copy(const std::string& text);
  // The text on the clipboard; empty if there is none.
  std::string paste() const;

 private:
  xcb_window_t owner() const;

  const XServer& server_;
  X11Client& client_;
  std::unique_ptr<Process> offer_;
};

// A separate desktop session with the program, which has just started.
struct Session {
  struct Options {
    XServer::Options server{};
    bool messageBus = false;
    std::string busConfiguration{};          // the message bus's configuration file; empty for that of a normal session
    std::vector<std::string> environment{};  // more variables for the program, in the form NAME=value
    int dotsPerInch = 0;                     // the desktop's setting; 0 for no setting
    std::uint16_t leftMonitor = 0;           // the width of a second monitor on the left; 0 for none
  };

  Session() : Session(Options()) {}
  explicit Session(const Options& options);

  // Waits until there are `count` windows whose title has this beginning, and returns the newest.
  xcb_window_t waitForWindow(const std::string& titleBeginning, std::size_t count = 1);
  // Returns when the window has the focus.
  void bringToFront(xcb_window_t window);

  Home home;  // the program's home folder
  XServer server;
  X11Client client;
  Windows windows{client};
  Hand hand{client};
  OutsideClipboard clipboard{server, client};
  std::optional<Process> bus;
  std::vector<std::string> environment;  // the program's environment
  WindowManager manager;
  Process program;

 private:
  std::vector<std::string> prepared(const Options& options);
};

}  // namespace tavrelkin::test
