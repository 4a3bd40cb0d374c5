#include "e2e/support/WindowManager.h"

#include <algorithm>
#include <chrono>
#include <fstream>
#include <stdexcept>

#include "e2e/X11Client.h"
#include "e2e/support/WaitUntil.h"
#include "e2e/support/Windows.h"

namespace tavrelkin::test {

namespace {

// New windows get the keyboard; a click raises its window, and reaches it.
constexpr auto kConfiguration = R"(<?xml version="1.0" encoding="UTF-8"?>
<openbox_config xmlns="http://openbox.org/3.4/rc">
  <focus><focusNew>yes</focusNew><followMouse>no</followMouse></focus>
  <placement><policy>Smart</policy></placement>
  <desktops><number>1</number></desktops>
  <keyboard/>
  <mouse>
    <context name="Client">
      <mousebind button="Left" action="Press"><action name="Focus"/><action name="Raise"/></mousebind>
    </context>
  </mouse>
</openbox_config>
)";

std::vector<std::string> command(const Home& home) {
  const std::string file = home.path() / "rc.xml";
  std::ofstream(file) << kConfiguration;
  return {"openbox", "--sm-disable", "--config-file", file};
}

// Whether a window that is shown now gets managed. The manager announces itself before it is able to do so, and forgets
// what is shown in between.
bool managesNewWindow(X11Client& client, const Windows& windows) {
  auto* const c = client.connection();
  const xcb_window_t window = xcb_generate_id(c);
  xcb_create_window(c, XCB_COPY_FROM_PARENT, window, client.root(), 0, 0, 1, 1, 0, XCB_WINDOW_CLASS_INPUT_OUTPUT,
                    XCB_COPY_FROM_PARENT, 0, nullptr);
  xcb_map_window(c, window);
  const auto isManaged = [&] { return std::ranges::count(windows.all(), window) > 0; };
  const bool result = waitUntil(isManaged, std::chrono::milliseconds(100));
  client.close(window);
  return result;
}

}  // namespace

WindowManager::WindowManager(const XServer& server) : process_(command(home_), home_.environment(server.display())) {
  X11Client client(server.display().c_str());
  const Windows windows(client);
  const auto isReady = [&] { return windows.areManaged() && managesNewWindow(client, windows); };
  if (!waitUntil(isReady) || !waitUntil([&] { return windows.all().empty(); }))
    throw std::runtime_error("The window manager did not start: " + process_.errors());
}

}  // namespace tavrelkin::test
