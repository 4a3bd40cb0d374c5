// The simulator of colour vision: colours by paste and drop, gammas, results on the screen and on their way out.

#include <memory>

#include <gtest/gtest.h>

#include "e2e/support/ToolWindow.h"
#include "e2e/support/WaitUntil.h"

namespace tavrelkin::test {
namespace {

constexpr ScreenPoint kNormal{118, 67};
constexpr ScreenPoint kResults[] = {{134, 126}, {134, 153}, {134, 180}};
constexpr ScreenPoint kLarge{300, 150};
constexpr ScreenPoint kInset{212, 153};
constexpr ScreenPoint kGammaField{110, 24};
constexpr ScreenPoint kGammaList{280, 24};
constexpr ScreenPoint kUpdate{360, 219};

// What is seen of pure red with each deficiency.
constexpr std::uint32_t kRedAt18[] = {0x826E15, 0x956700, 0xFE0E00};
constexpr std::uint32_t kRedAt22[] = {0x938021, 0xA47A00, 0xFE1900};

class SimulatorTest : public UnfoldedToolWindowTest {
 protected:
  static constexpr int kToolsMenu = 183;

  void SetUp() override {
    UnfoldedToolWindowTest::SetUp();
    tool_.chooseFirst(kToolsMenu);
    simulator_ = std::make_unique<ProgramWindow>(session_, session_.waitForWindow("Color Blind Simulator"), 244);
    session_.bringToFront(simulator_->window());
    simulator_->moveTo(600, 60);
  }

  void paste(const std::string& text) {
    session_.clipboard.copy(text);
    simulator_->keys("Ctrl+V");
  }
  void click(const ScreenPoint& at) { simulator_->click(at.x, at.y); }
  std::uint32_t shows(const ScreenPoint& at) const { return simulator_->shows(at.x, at.y); }
  testing::AssertionResult gets(std::uint32_t rgb, const ScreenPoint& at) const {
    return simulator_->gets(rgb, at.x, at.y);
  }
  void expectResults(const std::uint32_t (&expected)[3]) const {
    for (int i = 0; i < 3; ++i)
      EXPECT_TRUE(gets(expected[i], kResults[i])) << "deficiency " << i;
  }

  std::unique_ptr<ProgramWindow> simulator_;
};

TEST_F(SimulatorTest, ShowsAPastedColourAtTheGammaThatIsChosen) {
  paste("#FF0000");
  EXPECT_TRUE(gets(0xFF0000, kNormal));
  expectResults(kRedAt18);
  EXPECT_TRUE(gets(0xFF0000, kInset));
  EXPECT_TRUE(gets(kRedAt18[0], kLarge));
  click(kResults[2]);
  EXPECT_TRUE(gets(kRedAt18[2], kLarge));
  click(kGammaList);
  for (const char* key : {"Down", "Down", "Down", "Return"}) {
    session_.hand.rest();
    session_.hand.keys(key);
  }
  session_.hand.rest();
  session_.hand.moveTo({300, 700});
  click(kUpdate);
  EXPECT_TRUE(gets(kRedAt22[0], kResults[0]));
  EXPECT_TRUE(gets(kRedAt22[1], kResults[1]));
  EXPECT_TRUE(gets(kRedAt22[0], kLarge)) << "back on the first";
}

TEST_F(SimulatorTest, TellsAnInvalidGammaOnceAndGoesOn) {
  paste("#FF0000");
  ASSERT_TRUE(gets(kRedAt18[0], kResults[0]));
  click(kGammaField);
  for (const char* key : {"Ctrl+A", "A", "B", "C"}) {
    session_.hand.rest();
    session_.hand.keys(key);
  }
  session_.hand.rest();
  click(kUpdate);
  session_.bringToFront(session_.waitForWindow("Tavrelkin"));
  session_.hand.keys("Return");
  EXPECT_TRUE(gets(kRedAt22[0], kResults[0]));
  click(kUpdate);
  EXPECT_TRUE(gets(kRedAt18[0], kResults[0]));
  EXPECT_TRUE(session_.windows.titled("Tavrelkin").empty());
}

TEST_F(SimulatorTest, TakesADropOnTheNormalColourAndGivesItsResultsAway) {
  session_.hand.altDrag(tool_.onSwatch(), simulator_->onScreen(kNormal.x, kNormal.y));
  ASSERT_TRUE(gets(0x70ABFF, kNormal));
  const std::uint32_t result = shows(kResults[0]);
  session_.hand.altDrag(tool_.onSwatch(), simulator_->onScreen(kResults[0].x, kResults[0].y));
  session_.hand.altDrag(simulator_->onScreen(kResults[0].x, kResults[0].y), tool_.onBar(0, 20));
  EXPECT_TRUE(tool_.getsTitleOf((result & 0xFF0000) | 0x00ABFF));
  EXPECT_EQ(shows(kResults[0]), result) << "a result takes no drop";
}

TEST_F(SimulatorTest, TheCommandOpensAnotherWhereNoToolWindowIsInFront) {
  simulator_->keys("Ctrl+D");
  EXPECT_NE(session_.waitForWindow("Color Blind Simulator", 2), simulator_->window());
  tool_.keys("Ctrl+D");
  EXPECT_TRUE(tool_.gets(0x909090, 20 + 100, 33 + 12)) << "the frame of the first swatch in the preview";
  tool_.chooseFirst(kToolsMenu);
  EXPECT_TRUE(waitUntil([&] { return session_.windows.hasKeyboard(simulator_->window()); }))
      << "the menu's own way brings up the one that is there";
}

}  // namespace
}  // namespace tavrelkin::test
