#include "e2e/support/XServer.h"

#include <algorithm>
#include <chrono>
#include <stdexcept>

#include "e2e/support/Hand.h"
#include "e2e/support/WaitUntil.h"

namespace tavrelkin::test {

namespace {

std::vector<std::string> command(const XServer::Options& options) {
  std::vector<std::string> result{"Xvfb",         "-displayfd", "1",        "-screen",   "0",
                                  options.screen, "-ac",        "-noreset", "-nolisten", "tcp"};
  result.insert(result.end(), options.arguments.begin(), options.arguments.end());
  return result;
}

// Whether a window that is shown now gets managed. The manager announces itself before it is able to do so, and forgets
// what is shown in between.
bool managesNewWindow(X11Client& client, const Windows& windows) {
  const xcb_window_t window = client.open({0, 0, 1, 1}, false);
  const auto isManaged = [&] { return std::ranges::count(windows.all(), window) > 0; };
  const bool result = waitUntil(isManaged, std::chrono::milliseconds(100));
  client.close(window);
  return result;
}

}  // namespace

XServer::XServer(const Options& options)
    : process_(command(options), home_.environment({})), display_(":" + process_.firstLine()) {}

WindowManager::WindowManager(const XServer& server)
    : process_({"openbox", "--sm-disable", "--config-file", TAVRELKIN_OPENBOX}, server.environment()) {
  X11Client client(server.display());
  const Windows windows(client);
  if (!waitUntil([&] { return managesNewWindow(client, windows); }) ||
      !waitUntil([&] { return windows.all().empty(); }))
    throw std::runtime_error("The window manager did not start: " + process_.errors());
}

}  // namespace tavrelkin::test
