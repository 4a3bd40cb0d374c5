// What the loadable module gives to the program.

#include "runtime/desktop/native/WaylandModule.h"

#include <utility>

#include "runtime/desktop/portal/PortalScreenReader.h"

namespace tavrelkin {

namespace {

ScreenReader* makeScreenReader(std::function<void(const std::string&)> tell) {
  return makePortalScreenReader(std::move(tell)).release();
}

}  // namespace

}  // namespace tavrelkin

extern "C" __attribute__((visibility("default"))) const tavrelkin::WaylandModule* tavrelkinWaylandModule() {
  static constexpr tavrelkin::WaylandModule kModule{tavrelkin::makeScreenReader};
  return &kModule;
}
