#include "runtime/system/System.h"

#include "runtime/desktop/Desktop.h"
#include "runtime/gui/Application.h"

namespace tavrelkin::System {

Int32 MouseX() {
  return desktop().pointer().x;
}

Int32 MouseY() {
  return desktop().pointer().y;
}

Color Pixel(Int32 x, Int32 y) {
  Desktop& screen = desktop();
  if (!screen.canReadScreen()) Application::current().tellWhyNoScreen();
  return Color{screen.pixel({x, y})};
}

}  // namespace tavrelkin::System
