#pragma once

#include <optional>
#include <string>
#include <vector>

#include "bench/support/ProcessUsage.h"
#include "driver/Hand.h"
#include "driver/Process.h"
#include "driver/Session.h"
#include "driver/X11Client.h"

namespace tavrelkin::bench {

// A program that is measured beside others, whatever it is: all is found out from what the screen shows.
struct Program {
  std::string name;          // as the table calls it
  std::string path;          // looked for in PATH where it has no slash
  std::string followKeys{};  // the keys that make it follow the pointer, if it doesn't by itself
  bool isInstalled() const;
};

// A desktop with a window manager and nothing on it but a few windows of test colours.
struct PeerDesktop {
  test::XServer server{{.screen = "1280x1000x24", .arguments = {}}};
  test::X11Client client{server.display()};
  test::Windows windows{client};
  test::Hand hand{client};
  test::WindowManager manager{server};
};

// The program, started in an empty home, and at rest.
class RunningProgram {
 public:
  RunningProgram(PeerDesktop& desktop, const Program& program);

  const ProcessUsage& usage() const { return *usage_; }
  // The inside of its window's frame, and what the screen shows there.
  const test::Area& area() const { return area_; }
  std::vector<std::uint32_t> shown() const { return desktop_.client.read(area_); }

  // Has it follow the pointer, if it needs to be told.
  void follow();

 private:
  PeerDesktop& desktop_;
  const Program& program_;
  test::Home home_;
  std::optional<test::Process> process_;
  std::optional<ProcessUsage> usage_;
  xcb_window_t window_ = XCB_NONE;
  test::Area area_{};
};

// The milliseconds from the fork until the screen shows in that area what `atRest` says, but for a few pixels. The
// program is ended then.
double millisecondsToStart(PeerDesktop& desktop, const Program& program, const test::Area& area,
                           const std::vector<std::uint32_t>& atRest);

}  // namespace tavrelkin::bench
