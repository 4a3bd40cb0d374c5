// The simulator of colour vision: colours by paste and drop, gammas, results on the screen and on their way out.

#include <gtest/gtest.h>

#include "e2e/support/ToolWindow.h"
#include "e2e/support/WaitUntil.h"

namespace tavrelkin::test {
namespace {

constexpr int kToolsMenu = 183;
constexpr ScreenPoint kNormal{118, 67};
constexpr ScreenPoint kResult{134, 126};
constexpr ScreenPoint kLarge{300, 150};
constexpr ScreenPoint kGammaField{110, 24};
constexpr ScreenPoint kGammaList{280, 24};
constexpr ScreenPoint kUpdate{360, 219};

using SimulatorTest = UnfoldedToolWindowTest;

TEST_F(SimulatorTest, SimulatesWhatIsPastedAndDroppedAtTheGammaThatIsChosen) {
  tool_.choose(kToolsMenu, "Down");
  ProgramWindow simulator(session_, session_.waitForWindow("Color Blind Simulator"), 244);
  session_.bringToFront(simulator.window());
  simulator.moveTo(600, 60);
  // A click there, and then keys, with a rest before each for what comes up.
  const auto use = [&](const ScreenPoint& at, std::initializer_list<const char*> keys) {
    simulator.click(at.x, at.y);
    for (const char* key : keys) {
      session_.hand.rest();
      session_.hand.keys(key);
    }
    session_.hand.rest();
  };
  const auto expectRedAs = [&](std::uint32_t seen) {
    EXPECT_TRUE(simulator.gets(seen, kResult.x, kResult.y));
    EXPECT_TRUE(simulator.gets(seen, kLarge.x, kLarge.y));
  };
  constexpr std::uint32_t kAt18 = 0x826E15;
  constexpr std::uint32_t kAt22 = 0x938021;

  simulator.paste("#FF0000");
  expectRedAs(kAt18);
  use(kGammaList, {"Down", "Down", "Down", "Return"});
  session_.hand.moveTo({300, 700});
  use(kUpdate, {});
  expectRedAs(kAt22);
  use(kGammaField, {"Ctrl+A", "A", "B", "C"});
  use(kUpdate, {});
  session_.bringToFront(session_.waitForWindow("Tavrelkin"));
  session_.hand.keys("Return");
  ASSERT_TRUE(waitUntil([&] { return session_.windows.titled("Tavrelkin").empty(); }));
  expectRedAs(kAt22);
  use(kUpdate, {});
  expectRedAs(kAt18);
  EXPECT_TRUE(session_.windows.titled("Tavrelkin").empty()) << "told once";

  const ScreenPoint result = simulator.onScreen(kResult.x, kResult.y);
  session_.hand.altDrag(tool_.onSwatch(), result);
  session_.hand.altDrag(result, tool_.onBar(0, 20));
  EXPECT_TRUE(tool_.getsTitleOf(0x82ABFF)) << "a result takes no drop and gives its colour";
  session_.hand.altDrag(tool_.onSwatch(), simulator.onScreen(kNormal.x, kNormal.y));
  EXPECT_TRUE(simulator.gets(0x82ABFF, kNormal.x, kNormal.y));
}

}  // namespace
}  // namespace tavrelkin::test
