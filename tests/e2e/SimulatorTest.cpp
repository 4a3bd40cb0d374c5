// The simulator of colour vision: colours by paste and drop, gammas, results on the screen and on their way out.

#include <gtest/gtest.h>

#include "driver/ToolWindow.h"

namespace tavrelkin::test {
namespace {

constexpr int kToolsMenu = 183;
constexpr ScreenPoint kNormal{118, 67};
constexpr ScreenPoint kResult{134, 126};
constexpr ScreenPoint kLarge{300, 150};
constexpr ScreenPoint kGammaList{280, 24};
constexpr ScreenPoint kUpdate{360, 219};

using SimulatorTest = UnfoldedToolWindowTest;

TEST_F(SimulatorTest, SimulatesWhatIsPastedAndDroppedAtTheGammaThatIsChosen) {
  tool_.choose(kToolsMenu, "Down");
  ProgramWindow simulator(session_, session_.waitForWindow("Color Blind Simulator"), 244);
  session_.bringToFront(simulator.window());
  simulator.moveTo(600, 60);
  const auto expectRedAs = [&](std::uint32_t seen) {
    EXPECT_TRUE(simulator.gets(seen, kResult.x, kResult.y));
    EXPECT_TRUE(simulator.gets(seen, kLarge.x, kLarge.y));
  };
  simulator.paste("#FF0000");
  expectRedAs(0x826E15);
  simulator.click(kGammaList.x, kGammaList.y);
  for (const char* key : {"Down", "Down", "Down", "Return"}) {
    session_.hand.rest();  // for what comes up
    session_.hand.keys(key);
  }
  session_.hand.rest();
  session_.hand.moveTo({300, 700});
  simulator.click(kUpdate.x, kUpdate.y);
  expectRedAs(0x938021);

  const ScreenPoint result = simulator.onScreen(kResult.x, kResult.y);
  session_.hand.altDrag(tool_.onSwatch(), result);
  session_.hand.altDrag(result, tool_.onBar(0, 20));
  EXPECT_TRUE(tool_.getsTitleOf(0x93ABFF)) << "a result takes no drop and gives its colour";
  session_.hand.altDrag(tool_.onSwatch(), simulator.onScreen(kNormal.x, kNormal.y));
  EXPECT_TRUE(simulator.gets(0x93ABFF, kNormal.x, kNormal.y));
}

}  // namespace
}  // namespace tavrelkin::test
