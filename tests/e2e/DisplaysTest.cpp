// Displays of all kinds: depths, extensions, monitors, high resolutions, and a session whose screen can't be read. At
// any scale of the program, each pixel of the screen can be hit, and each pixel of the preview is a hard-edged block.

#include <algorithm>

#include <gtest/gtest.h>

#include "driver/ToolWindow.h"

namespace tavrelkin::test {
namespace {

constexpr std::uint16_t kLeftMonitor = 1200;
const XServer::Options kServer{.screen = "2400x1000x24"};

// Checks sample, marker, poke, click, a drag out of the preview, and follow.
void expectExact(Session& session, ToolWindow& tool) {
  const ForeignWindow foreign(session.client, {1080, 720, 240, 140});  // away from the tool window
  const ScreenPoint at{1201, 793};
  session.hand.moveTo(at);
  tool.keys("Ctrl+Alt+P");
  EXPECT_TRUE(tool.getsTitleOf(foreign.shown(at)));
  const Preview preview = foreign.previewAt(at);
  ASSERT_TRUE(tool.getsPreview(preview));
  for (const int x : {101, 104}) {
    session.hand.click(tool.onPreview(x, 50));
    EXPECT_TRUE(tool.getsTitleOf(foreign.shown(preview.enlarged(x, 50)))) << x;
  }

  const ScreenPoint end{1187, 781};
  session.hand.moveTo(tool.onPreview(100, 100));
  session.hand.pressButton();
  session.hand.moveTo(end);
  EXPECT_TRUE(tool.getsPreview(foreign.previewAt(end)));
  session.hand.releaseButton();
  EXPECT_TRUE(tool.getsTitleOf(foreign.shown(end)));
  tool.keys("Ctrl+F");
  session.hand.moveTo(at);
  EXPECT_TRUE(tool.getsPreview(preview)) << "following";
  tool.keys("Ctrl+F");
}

struct Display {
  const char* name;
  Session::Options session;
  double scale = 1;
  double rightScale = 1;  // the scale of the other monitor, if there is one
};

class DisplaysTest : public testing::TestWithParam<Display> {};

TEST_P(DisplaysTest, EveryPixelIsHit) {
  Session session(GetParam().session);
  ToolWindow tool(session);
  ASSERT_TRUE(tool.getsScale(GetParam().scale));
  expectExact(session, tool);
  if (GetParam().session.leftMonitor == 0) return;
  tool.moveTo(1350, 60);
  ASSERT_TRUE(tool.getsScale(GetParam().rightScale));
  expectExact(session, tool);
}

Session::Options monitors(const std::string& factors) {
  return {.server = kServer, .environment = {"QT_SCREEN_SCALE_FACTORS=" + factors}, .leftMonitor = kLeftMonitor};
}

const Display kDisplays[] = {
    {"WithoutSharedMemory", {.server = {kServer.screen, {"-extension", "MIT-SHM"}}}},
    {"WithoutPointerEvents", {.server = {kServer.screen, {"-extension", "XInputExtension"}}}},
    {"Depth16", {.server = {"2400x1000x16"}}},
    {"Depth30", {.server = {"2400x1000x30"}}},
    {"Quarter", {.server = kServer, .environment = {"QT_SCALE_FACTOR=1.25"}}, 1.25},
    {"UnevenByTheDesktop", {.server = kServer, .dotsPerInch = 108}, 1.125},
    {"DoubleByTheDesktop", {.server = kServer, .dotsPerInch = 192}, 2},
    {"Monitors", {.server = kServer, .leftMonitor = kLeftMonitor}},
    {"Finer", monitors("left=1;right=2"), 1, 2},
    {"Coarser", monitors("left=2;right=1.25"), 2, 1.25},
    {"Uneven", monitors("left=1.5;right=1"), 1.5, 1},
};

INSTANTIATE_TEST_SUITE_P(Of, DisplaysTest, testing::ValuesIn(kDisplays),
                         [](const auto& display) { return std::string(display.param.name); });

// If the window grows so much that its middle would be on the other monitor, it must not move back and forth.
TEST(MonitorEdgeTest, AWindowThatGrowsStaysOnItsMonitor) {
  Session session(monitors("left=2;right=1"));
  ToolWindow tool(session);
  tool.moveTo(1500, 60);
  ASSERT_TRUE(tool.getsScale(1));
  session.windows.moveTo(tool.window(), 950, 60);
  ASSERT_TRUE(tool.getsScale(2));
  for (int i = 0; i < 5; ++i) {
    session.hand.rest();
    EXPECT_TRUE(tool.hasItsSize()) << i;
  }
}

// In a Wayland session an X11 display doesn't show the screen.
TEST(WaylandTest, TheUserIsToldOnceThatTheScreenCantBeRead) {
  Session session({.environment = {"WAYLAND_DISPLAY=wayland-0", "QT_QPA_PLATFORM=xcb"}});
  ToolWindow tool(session);
  const ForeignWindow foreign(session.client, {700, 500, 240, 140});
  session.hand.moveTo({820, 570});
  tool.keys("Ctrl+F");
  session.bringToFront(session.waitForWindow("Tavrelkin"));
  session.hand.keys("Return");
  ASSERT_TRUE(waitUntil([&] { return session.windows.all().size() == 1; }));

  // The message may have covered the preview.
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
