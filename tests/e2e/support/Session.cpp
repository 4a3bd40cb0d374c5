#include "e2e/support/Session.h"

#include <stdexcept>

#include "e2e/support/WaitUntil.h"

namespace tavrelkin::test {

namespace {

std::vector<std::string> programEnvironment(const Home& home, const XServer& server,
                                            const std::optional<MessageBus>& bus,
                                            const std::vector<std::string>& more) {
  auto result = home.environment(server.display(), bus ? bus->address() : "");
  result.insert(result.end(), more.begin(), more.end());
  return result;
}

// The screen as it is before any program starts.
X11Client& settled(X11Client& client, const Session::Options& options) {
  if (options.dotsPerInch > 0) client.setResources("Xft.dpi:\t" + std::to_string(options.dotsPerInch) + "\n");
  if (options.leftMonitor > 0 && !client.splitScreen(options.leftMonitor))
    throw std::runtime_error("The X server can't have two monitors.");
  return client;
}

}  // namespace

std::vector<std::string> Session::command() {
  return {TAVRELKIN_PROGRAM};
}

Session::Session(const Options& options)
    : server(options.server),
      bus(options.messageBus ? std::optional<MessageBus>(std::in_place, home, server) : std::nullopt),
      client(server.display().c_str()),
      windows(settled(client, options)),
      hand(client),
      manager(server),
      clipboard(server, client),
      program(command(), programEnvironment(home, server, bus, options.environment)) {}

xcb_window_t Session::waitForWindow(const std::string& titleBeginning) {
  waitForWindow(titleBeginning, 1);
  return windows.titled(titleBeginning).front();
}

xcb_window_t Session::waitForWindow(const std::string& titleBeginning, std::size_t count) {
  std::vector<xcb_window_t> found;
  const auto areThere = [&] {
    found = windows.titled(titleBeginning);
    return found.size() >= count;
  };
  if (!waitUntil(areThere)) {
    const std::string state = program.isRunning() ? "runs" : "has ended";
    throw std::runtime_error("Too few windows have the title \"" + titleBeginning + "\"; the program " + state + ". " +
                             program.errors());
  }
  return found.back();
}

void Session::bringToFront(xcb_window_t window) {
  if (windows.hasKeyboard(window)) return;
  // Asked for again, since a window manager may still be at work on the window's first appearance.
  const auto isInFront = [&] {
    windows.activate(window);
    return waitUntil([&] { return windows.hasKeyboard(window); }, std::chrono::milliseconds(200));
  };
  if (!waitUntil(isInFront)) throw std::runtime_error("The window doesn't get the keyboard.");
}

}  // namespace tavrelkin::test
