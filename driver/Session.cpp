#include "driver/Session.h"

#include <algorithm>
#include <stdexcept>

namespace tavrelkin::test {

namespace {

std::vector<std::string> command(const XServer::Options& options) {
  std::vector<std::string> result{"Xvfb",         "-displayfd", "1",        "-screen",   "0",
                                  options.screen, "-ac",        "-noreset", "-nolisten", "tcp"};
  result.insert(result.end(), options.arguments.begin(), options.arguments.end());
  return result;
}

// Whether the manager handles a new window. It announces itself before it can do so, and ignores windows that appear in
// between.
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

xcb_window_t OutsideClipboard::owner() const {
  auto* const c = client_.connection();
  const auto cookie = xcb_get_selection_owner(c, client_.atom("CLIPBOARD"));
  return await(c, cookie, xcb_get_selection_owner_reply)->owner;
}

void OutsideClipboard::copy(const std::string& text) {
  const auto before = owner();
  const std::vector<std::string> command{"xclip", "-selection", "clipboard", "-in", "-quiet"};
  auto offer = std::make_unique<Process>(command, server_.environment(), text);
  const auto isOffered = [&] { return owner() != before && owner() != XCB_NONE; };
  if (!waitUntil(isOffered)) throw std::runtime_error("The text can't be copied: " + offer->errors());
  offer_ = std::move(offer);
}

std::string OutsideClipboard::paste() const {
  Process reader({"xclip", "-selection", "clipboard", "-out"}, server_.environment());
  reader.waitForExit();
  return reader.output();
}

Session::Session(const Options& options)
    : server(options.server),
      client(server.display()),
      environment(prepared(options)),
      manager(server),
      program({TAVRELKIN_PROGRAM}, environment) {}

// Prepares the screen and the bus before any program starts; returns the program's environment.
std::vector<std::string> Session::prepared(const Options& options) {
  if (options.dotsPerInch > 0) client.setResources("Xft.dpi:\t" + std::to_string(options.dotsPerInch) + "\n");
  if (options.leftMonitor > 0) client.splitScreen(options.leftMonitor);
  const std::string kind = options.busConfiguration.empty() ? "--session" : "--config-file=" + options.busConfiguration;
  const std::vector<std::string> busCommand{"dbus-daemon", kind,          "--address=unix:runtime=yes",
                                            "--nofork",    "--nopidfile", "--print-address"};
  if (options.messageBus) bus.emplace(busCommand, home.environment(server.display()));
  auto result = home.environment(server.display(), bus ? bus->firstLine() : "");
  result.insert(result.end(), options.environment.begin(), options.environment.end());
  return result;
}

xcb_window_t Session::waitForWindow(const std::string& titleBeginning, std::size_t count) {
  std::vector<xcb_window_t> found;
  const auto areThere = [&] {
    found = windows.titled(titleBeginning);
    return found.size() >= count;
  };
  if (!waitUntil(areThere))
    throw std::runtime_error("Too few windows have the title \"" + titleBeginning + "\"; the program " +
                             (program.isRunning() ? "runs. " : "has ended. ") + program.errors());
  return found.back();
}

void Session::bringToFront(xcb_window_t window) {
  if (windows.hasKeyboard(window)) return;
  // Repeats the request, since the window manager may still be busy with the window's first appearance.
  const auto isInFront = [&] {
    windows.activate(window);
    return waitUntil([&] { return windows.hasKeyboard(window); }, std::chrono::milliseconds(200));
  };
  if (!waitUntil(isInFront)) throw std::runtime_error("The window doesn't get the focus.");
}

}  // namespace tavrelkin::test
