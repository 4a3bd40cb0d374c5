// Runs this program's tests on a separate X server without a window manager, since they change the screen's size and
// move its pointer.

#include <QApplication>

#include <gtest/gtest.h>

#include "driver/Session.h"

int main(int argc, char** argv) {
  testing::InitGoogleTest(&argc, argv);

  const tavrelkin::test::XServer server;
  qputenv("DISPLAY", server.display().c_str());
  qputenv("QT_QPA_PLATFORM", "xcb");
  qunsetenv("WAYLAND_DISPLAY");
  const QApplication application(argc, argv);
  return RUN_ALL_TESTS();
}
