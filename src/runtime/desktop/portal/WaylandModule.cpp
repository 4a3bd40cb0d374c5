// The entry point of the loadable module.

#include "runtime/desktop/native/WaylandModule.h"

#include <memory>
#include <utility>

#include "runtime/desktop/portal/PortalScreenReader.h"

namespace tavrelkin {

namespace {

ScreenReader* makeScreenReader(std::function<void(const std::string&)> tell) {
  return std::make_unique<PortalScreenReader>(std::move(tell)).release();
}

}  // namespace

}  // namespace tavrelkin

extern "C" __attribute__((visibility("default"))) const tavrelkin::WaylandModule* tavrelkinWaylandModule() {
  static constexpr tavrelkin::WaylandModule kModule{tavrelkin::makeScreenReader};
  return &kModule;
}
