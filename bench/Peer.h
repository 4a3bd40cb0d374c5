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

// Any program that is measured beside others. All measures come from what the screen shows.
struct Program {
  std::string name;          // the name in the table
  std::string path;          // the path, or a name that is searched in PATH
  std::string followKeys{};  // the keys that make it follow the pointer; empty if it follows by itself
  bool isInstalled() const;
};

// A desktop with a window manager and only a few windows, which show test colours.
struct PeerDesktop {
  test::XServer server{{.screen = "1280x1000x24", .arguments = {}}};
  test::X11Client client{server.display()};
  test::Windows windows{client};
  test::Hand hand{client};
  test::WindowManager manager{server};
};

// The program, which was started with an empty home folder and is idle.
class RunningProgram {
 public:
  RunningProgram(PeerDesktop& desktop, const Program& program);

  const ProcessUsage& usage() const { return *usage_; }
  // The area inside its window's frame, and what the screen shows there.
  const test::Area& area() const { return area_; }
  std::vector<std::uint32_t> shown() const { return desktop_.client.read(area_); }

  // Makes it follow the pointer, if that takes keys.
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

// The milliseconds from the fork until that area of the screen shows `atRest`, except for a few pixels. Then ends the
// program.
double millisecondsToStart(PeerDesktop& desktop, const Program& program, const test::Area& area,
                           const std::vector<std::uint32_t>& atRest);

}  // namespace tavrelkin::bench
