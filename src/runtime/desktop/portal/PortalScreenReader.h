#pragma once

#include <functional>
#include <memory>
#include <string>

#include "runtime/desktop/ScreenReader.h"

namespace tavrelkin {

// Reads the screen of a Wayland session through the desktop portal, which asks the user for permission once in a run.
// Where the portal gives no more than single colours, it picks those. It needs a running event loop of the toolkit, and
// contacts neither the portal nor PipeWire before the first request.
//
// `tell` shows the user a message. It is called from the event loop.
std::unique_ptr<ScreenReader> makePortalScreenReader(std::function<void(const std::string&)> tell);

}  // namespace tavrelkin
