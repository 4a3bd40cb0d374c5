// Screens with more pixels to the inch: whatever the program's scale is, each pixel of the screen is hit, and each
// pixel of the preview is a hard-edged block.

#include <gtest/gtest.h>

#include "e2e/support/ForeignWindow.h"
#include "e2e/support/ToolWindow.h"

namespace tavrelkin::test {
namespace {

constexpr auto kScreen = "2400x1000x24";
constexpr std::uint16_t kLeftMonitor = 1200;
constexpr Area kForeign{1080, 720, 240, 140};  // where no tool window is

// Sample, marker, poke, click and a drag out of the preview.
void expectExact(Session& session, ToolWindow& tool) {
  const ForeignWindow foreign(session.client, kForeign);
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
}

struct Scale {
  const char* name;
  double scale;
  std::vector<std::string> environment;
  int dotsPerInch = 0;
};

class ScalesTest : public testing::TestWithParam<Scale> {};

TEST_P(ScalesTest, EveryPixelIsHit) {
  const Scale& row = GetParam();
  Session session({.server = {.screen = kScreen}, .environment = row.environment, .dotsPerInch = row.dotsPerInch});
  ToolWindow tool(session);
  ASSERT_TRUE(tool.getsScale(row.scale));
  expectExact(session, tool);
}

const Scale kScales[] = {
    {"Quarter", 1.25, {"QT_SCALE_FACTOR=1.25"}}, {"Half", 1.5, {"QT_SCALE_FACTOR=1.5"}},
    {"Double", 2, {"QT_SCALE_FACTOR=2"}},        {"Uneven", 1.125, {}, 108},
    {"DoubleByTheDesktop", 2, {}, 192},
};

INSTANTIATE_TEST_SUITE_P(Of, ScalesTest, testing::ValuesIn(kScales),
                         [](const auto& scale) { return std::string(scale.param.name); });

struct Monitors {
  const char* name;
  std::string factors;
  double left, right;
};

class MonitorScalesTest : public testing::TestWithParam<Monitors> {};

TEST_P(MonitorScalesTest, EveryPixelIsHitFromEither) {
  const Monitors& row = GetParam();
  Session session({.server = {.screen = kScreen},
                   .environment = {"QT_SCREEN_SCALE_FACTORS=" + row.factors},
                   .leftMonitor = kLeftMonitor});
  ToolWindow tool(session);
  ASSERT_TRUE(tool.getsScale(row.left));
  expectExact(session, tool);
  tool.moveTo(1350, 60);
  ASSERT_TRUE(tool.getsScale(row.right));
  expectExact(session, tool);
}

const Monitors kMonitors[] = {
    {"Finer", "left=1;right=2", 1, 2},
    {"Coarser", "left=2;right=1.25", 2, 1.25},
    {"Uneven", "left=1.5;right=1", 1.5, 1},
};

INSTANTIATE_TEST_SUITE_P(Of, MonitorScalesTest, testing::ValuesIn(kMonitors),
                         [](const auto& monitors) { return std::string(monitors.param.name); });

// Where it gets so large that its middle would lie on the monitor it came from, it must not go back and forth.
TEST(MonitorEdgeTest, AWindowThatGrowsStaysOnItsMonitor) {
  Session session({.server = {.screen = kScreen},
                   .environment = {"QT_SCREEN_SCALE_FACTORS=left=2;right=1"},
                   .leftMonitor = kLeftMonitor});
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

}  // namespace
}  // namespace tavrelkin::test
