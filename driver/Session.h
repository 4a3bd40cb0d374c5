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

// The clipboard, as another program uses it.
class OutsideClipboard {
 public:
  OutsideClipboard(const XServer& server, X11Client& client) : server_(server), client_(client) {}

  // The text is on offer until something else is copied or the object goes.
  void copy(const std::string& text);
  // The text that is on offer now; empty if there is none.
  std::string paste() const;

 private:
  xcb_window_t owner() const;

  const XServer& server_;
  X11Client& client_;
  std::unique_ptr<Process> offer_;
};

// A desktop session of its own, and the program in it, which has just been started.
struct Session {
  struct Options {
    XServer::Options server{};
    bool messageBus = false;
    std::string busConfiguration{};  // of a message bus of its own kind; the usual one of a session where it is empty
    std::vector<std::string> environment{};  // more variables for the program, in the form NAME=value
    int dotsPerInch = 0;                     // as the desktop's settings say it; nothing where 0
    std::uint16_t leftMonitor = 0;           // the width of one beside the main one, if any
  };

  Session() : Session(Options()) {}
  explicit Session(const Options& options);

  // The newest window with such a title, as soon as there are so many of them.
  xcb_window_t waitForWindow(const std::string& titleBeginning, std::size_t count = 1);
  // Returns when the window has the keyboard.
  void bringToFront(xcb_window_t window);

  Home home;  // the program's
  XServer server;
  X11Client client;
  Windows windows{client};
  Hand hand{client};
  OutsideClipboard clipboard{server, client};
  std::optional<Process> bus;
  std::vector<std::string> environment;  // the program's
  WindowManager manager;
  Process program;

 private:
  std::vector<std::string> prepared(const Options& options);
};

}  // namespace tavrelkin::test
