// Displays of all kinds: depths, extensions, monitors, and a session whose screen can't be read.

#include <algorithm>

#include <gtest/gtest.h>

#include "e2e/support/ForeignWindow.h"
#include "e2e/support/ToolWindow.h"
#include "e2e/support/WaitUntil.h"

namespace tavrelkin::test {
namespace {

struct Display {
  const char* name;
  XServer::Options server;
  int tolerance;  // of a channel, where the screen has fewer colours
};

class DisplaysTest : public testing::TestWithParam<Display> {};

TEST_P(DisplaysTest, AreFollowedAndPoked) {
  Session session({.server = GetParam().server});
  ToolWindow tool(session);
  const ForeignWindow foreign(session.client, {700, 500, 240, 140});
  const ScreenPoint at{820, 570};
  session.hand.moveTo(at);
  tool.keys("Ctrl+F");
  EXPECT_TRUE(tool.getsPreview(foreign.previewAt(at), GetParam().tolerance));
  tool.keys("Ctrl+Alt+P");
  EXPECT_TRUE(tool.getsTitleOf(foreign.shown(at)));
}

const Display kDisplays[] = {
    {"WithoutSharedMemory", {.arguments = {"-extension", "MIT-SHM"}}, 0},
    {"WithoutPointerEvents", {.arguments = {"-extension", "XInputExtension"}}, 0},
    {"Depth16", {.screen = "1280x800x16"}, 8},
    {"Depth30", {.screen = "1280x800x30"}, 0},
};

INSTANTIATE_TEST_SUITE_P(Of, DisplaysTest, testing::ValuesIn(kDisplays),
                         [](const auto& display) { return std::string(display.param.name); });

TEST(MonitorsTest, AreFollowedAndPokedOnEither) {
  Session session({.server = {.screen = "2000x800x24"}, .leftMonitor = 1000});
  ToolWindow tool(session);
  tool.keys("Ctrl+F");
  for (const std::int16_t left : {std::int16_t{1500}, std::int16_t{900}, std::int16_t{600}}) {
    const ForeignWindow foreign(session.client, {left, 500, 200, 140});
    const ScreenPoint at{left + 100, 570};
    session.hand.moveTo(at);
    EXPECT_TRUE(tool.getsPreview(foreign.previewAt(at))) << left;
    tool.keys("Ctrl+Alt+P");
    EXPECT_TRUE(tool.getsTitleOf(foreign.shown(at))) << left;
  }

  session.windows.moveTo(tool.window(), 1200, 50);
  ASSERT_TRUE(waitUntil([&] { return session.windows.area(tool.window()).x >= 1200; }));
  const ForeignWindow foreign(session.client, {300, 500, 200, 140});
  session.hand.moveTo({400, 570});
  EXPECT_TRUE(tool.getsPreview(foreign.previewAt({400, 570}))) << "with the window on the other one";
}

// An X11 display beside Wayland shows nothing of the screen.
TEST(WaylandTest, TheUserIsToldOnceThatTheScreenCantBeRead) {
  Session session({.environment = {"WAYLAND_DISPLAY=wayland-0", "QT_QPA_PLATFORM=xcb"}});
  ToolWindow tool(session);
  const ForeignWindow foreign(session.client, {700, 500, 240, 140});
  session.hand.moveTo({820, 570});
  tool.keys("Ctrl+F");
  const auto message = session.waitForWindow("Tavrelkin");
  session.bringToFront(message);
  session.hand.keys("Return");
  ASSERT_TRUE(waitUntil([&] { return session.windows.all().size() == 1; }));

  // The message may have lain over the preview.
  const auto isNotBlack = [&] {
    const Pixels preview = tool.preview();
    return std::ranges::count(preview, 0U) <= 20;
  };
  EXPECT_TRUE(waitUntil(isNotBlack)) << "more is black than the marker";

  tool.keys("Ctrl+F");
  tool.keys("Ctrl+F");
  EXPECT_TRUE(tool.paste(0x123456));
  EXPECT_EQ(session.windows.all().size(), 1U) << "told once";
}

}  // namespace
}  // namespace tavrelkin::test
