#include "runtime/core/system/System.h"

#include <utility>

#include "runtime/core/scheduling/Delivery.h"
#include "runtime/core/scheduling/Scheduler.h"
#include "runtime/desktop/Desktop.h"

namespace tavrelkin::System {

Int32 MouseX() {
  return desktop().screenReader().pointer().x;
}

Int32 MouseY() {
  return desktop().screenReader().pointer().y;
}

Color Pixel(Int32 x, Int32 y) {
  return Color{desktop().screenReader().pixel({x, y})};
}

bool CanReadScreen() {
  const ScreenReader& reader = desktop().screenReader();
  switch (reader.state()) {
    case ScreenState::live:
    case ScreenState::idle:
      return true;
    case ScreenState::unavailable:
      return !reader.canPickColor();
    default:
      return false;
  }
}

bool RequestScreen(std::function<void(Color)> picked) {
  ScreenReader::Picked take;
  if (picked) take = [picked = std::move(picked)](std::uint32_t rgb) { deliver([&] { picked(Color{rgb}); }); };
  desktop().screenReader().request(take);
  return CanReadScreen();
}

bool AwaitScreen() {
  const ScreenReader& reader = desktop().screenReader();
  const auto isComing = [&] { return reader.state() == ScreenState::asking || reader.state() == ScreenState::idle; };
  while (isComing() && Scheduler::instance().waitForScreen()) {
  }
  return CanReadScreen();
}

}  // namespace tavrelkin::System

bool tavrelkin::Keyboard::AsyncOptionKey() {
  return desktop().screenReader().optionKey();
}
