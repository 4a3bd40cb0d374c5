#include "runtime/system/System.h"

#include <utility>

#include <QCoreApplication>
#include <QMetaObject>

#include "runtime/desktop/Desktop.h"

namespace tavrelkin::System {

namespace {

// From the event loop, since a thread may be asking, whose stack can't hold a dialog's loop.
void sayOnceWhyNoScreen() {
  static const Desktop* told = nullptr;
  if (std::exchange(told, &desktop()) == &desktop()) return;
  QMetaObject::invokeMethod(
      QCoreApplication::instance(), [] { desktop().messageBox(desktop().whyNoScreen()); }, Qt::QueuedConnection);
}

}  // namespace

Int32 MouseX() {
  return desktop().pointer().x;
}

Int32 MouseY() {
  return desktop().pointer().y;
}

Color Pixel(Int32 x, Int32 y) {
  Desktop& screen = desktop();
  if (!screen.canReadScreen()) sayOnceWhyNoScreen();
  return Color{screen.pixel({x, y})};
}

}  // namespace tavrelkin::System
