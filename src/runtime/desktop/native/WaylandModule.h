#pragma once

#include <functional>
#include <string>

namespace tavrelkin {

class ScreenReader;

// The interface of the loadable module that only a Wayland session loads, so that other sessions don't pay for its
// libraries. In a build folder the module is beside the program; an installation has it in the folder for libraries.
struct WaylandModule {
  // Makes a PortalScreenReader. The caller owns it.
  ScreenReader* (*makeScreenReader)(std::function<void(const std::string&)> tell);
};

}  // namespace tavrelkin
