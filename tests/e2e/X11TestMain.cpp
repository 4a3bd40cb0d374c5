// Runs tests of this program's own on an X server of their own, without a window manager, since they change the
// screen's size and move its pointer. XVFB_SCREEN and XVFB_ARGUMENTS, where set, say what kind of server.

#include <QApplication>

#include <gtest/gtest.h>

#include "driver/Session.h"

int main(int argc, char** argv) {
  testing::InitGoogleTest(&argc, argv);

  tavrelkin::test::XServer::Options options;
  if (const auto screen = qEnvironmentVariable("XVFB_SCREEN"); !screen.isEmpty()) options.screen = screen.toStdString();
  for (const auto& argument : qEnvironmentVariable("XVFB_ARGUMENTS").split(' ', Qt::SkipEmptyParts))
    options.arguments.push_back(argument.toStdString());
  const tavrelkin::test::XServer server(options);

  qputenv("DISPLAY", server.display().c_str());
  qputenv("QT_QPA_PLATFORM", "xcb");
  qunsetenv("WAYLAND_DISPLAY");
  const QApplication application(argc, argv);
  return RUN_ALL_TESTS();
}
