// The colour controls under hand and keyboard.

#include <utility>

#include <gtest/gtest.h>

#include "e2e/support/ToolWindow.h"
#include "e2e/support/WaitUntil.h"

namespace tavrelkin::test {
namespace {

constexpr std::uint32_t kTip = 0xFFF8CE;
constexpr std::uint32_t kGround = 0xCCCCCC;

using BarsTest = UnfoldedToolWindowTest;

TEST_F(BarsTest, ADragShowsTheTipAndGivesTheColourAtItsEnd) {
  session_.hand.moveTo(tool_.onBar(0, 53));
  session_.hand.pressButton();
  session_.hand.moveTo(tool_.onBar(0, 60));
  EXPECT_TRUE(tool_.gets(kTip, 420, 345));
  EXPECT_TRUE(tool_.gets(0x7FABFF, 158 + 60, 277)) << "the indicator shows what would be";
  EXPECT_EQ(tool_.title(), titleOf(0x70ABFF));
  session_.hand.releaseButton();
  EXPECT_TRUE(tool_.getsTitleOf(0x7FABFF));
  EXPECT_TRUE(tool_.gets(0x7FABFF, 75, 296)) << "the swatch";
  EXPECT_TRUE(tool_.gets(kGround, 420, 345)) << "the tip goes by itself";
}

TEST_F(BarsTest, APressBesideTheIndicatorOnlyBringsTheKeyboard) {
  session_.hand.click(tool_.onBar(0, 100));
  EXPECT_TRUE(waitUntil([this] { return tool_.shows(157, 277) != kGround; })) << "a ring around the bar";
  session_.hand.keys("Right");
  EXPECT_TRUE(tool_.getsTitleOf(0x71ABFF));
  session_.hand.keys("Left");
  session_.hand.keys("Left");
  EXPECT_TRUE(tool_.getsTitleOf(0x6FABFF));
}

// From red the way leads to hue; that bar reads the colour back in steps of its own, blue's does not.
TEST_F(BarsTest, TheTabulatorMovesOnAndShortcutsStillWork) {
  session_.hand.click(tool_.onBar(1, 10));
  session_.hand.keys("Shift+Tab");
  session_.hand.keys("Left");
  EXPECT_TRUE(tool_.getsTitleOf(0x70ABFE)) << "blue";
  session_.hand.keys("Ctrl+C");
  EXPECT_TRUE(waitUntil([&] { return session_.clipboard.paste() == "#70ABFE"; }));
}

TEST_F(BarsTest, AClickTakesTheSuggestionUnderThePointer) {
  tool_.keys("Ctrl+S");
  ASSERT_TRUE(tool_.gets(0xA0A0A0, 20 + 5, 33 + 5));
  // The suggestions stay as they are until they are asked for again.
  for (const auto& [column, row] : {std::pair{2, 3}, {15, 0}, {13, 5}}) {
    const int x = 20 + 13 + column * 24 + 10;
    const int y = 33 + 10 + row * 25 + 10;
    const std::uint32_t suggested = tool_.shows(x, y);
    ASSERT_NE(tool_.title(), titleOf(suggested));
    tool_.click(x, y);
    EXPECT_TRUE(tool_.getsTitleOf(suggested));
  }
}

TEST_F(BarsTest, AClickRepairsAColourThatIsNotWebSafe) {
  tool_.click(159, 14);
  EXPECT_TRUE(tool_.getsTitleOf(0x6699FF));
  EXPECT_TRUE(tool_.gets(kGround, 159, 14)) << "nothing is left to repair";
}

TEST_F(BarsTest, AColourPickedInTheDialogGoesToTheButtonAlone) {
  const struct {
    const char* lastKey;
    std::uint32_t expected;
  } rows[] = {{"Escape", 0x70ABFF}, {"Return", 0x12AB34}};
  for (const auto& row : rows) {
    session_.clipboard.copy("#12AB34");
    tool_.click(28, 16);
    const xcb_window_t dialog = session_.waitForWindow("Select Color");
    session_.bringToFront(dialog);
    for (const char* keys : {"Alt+H", "Ctrl+A", "Ctrl+V"})
      session_.hand.keys(keys);
    session_.hand.keys(row.lastKey);
    ASSERT_TRUE(waitUntil([&] { return session_.windows.titled("Select Color").empty(); }));
    EXPECT_TRUE(tool_.gets(row.expected, 28, 16)) << row.lastKey;
    EXPECT_EQ(tool_.title(), titleOf(0x70ABFF));
  }
}

}  // namespace
}  // namespace tavrelkin::test
