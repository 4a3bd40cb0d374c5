#pragma once

#include <functional>
#include <string>

namespace tavrelkin {

class ScreenReader;

// What a Wayland session takes that other sessions should not pay for. It stands in a loadable module, beside the
// program in a build folder, and in the folder for libraries where the program is installed.
struct WaylandModule {
  // See makePortalScreenReader. The caller takes the reader over.
  ScreenReader* (*makeScreenReader)(std::function<void(const std::string&)> tell);
};

// Loads the module, which stays for the rest of the run. Null where it is missing, or libraries that it needs are.
const WaylandModule* loadWaylandModule();

}  // namespace tavrelkin
