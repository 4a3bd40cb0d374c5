// The colour controls under mouse and keyboard.

#include <chrono>
#include <thread>
#include <vector>

#include <gtest/gtest.h>

#include "driver/ToolWindow.h"

namespace tavrelkin::test {
namespace {

constexpr std::uint32_t kGround = 0xCCCCCC;

using BarsTest = UnfoldedToolWindowTest;

TEST_F(BarsTest, ADragGivesTheColorAtItsEnd) {
  session_.hand.moveTo(tool_.onBar(0, 53));
  session_.hand.pressButton();
  session_.hand.moveTo(tool_.onBar(0, 60));
  EXPECT_TRUE(tool_.gets(0x7FABFF, 158 + 60, 277)) << "the indicator shows what would be";
  EXPECT_EQ(tool_.title(), titleOf(0x70ABFF));
  session_.hand.releaseButton();
  EXPECT_TRUE(tool_.getsTitleOf(0x7FABFF));
  EXPECT_TRUE(tool_.gets(0x7FABFF, 75, 296)) << "the swatch";

  tool_.keys("Ctrl+S");
  ASSERT_TRUE(tool_.gets(0xA0A0A0, 20 + 5, 33 + 5));
  const std::uint32_t suggested = tool_.shows(91, 118);
  tool_.click(91, 118);
  EXPECT_TRUE(tool_.getsTitleOf(suggested));
}

// The focus moves from red to hue. The hue bar reads the colour back in its own steps; the blue bar would not show
// that.
TEST_F(BarsTest, APressBringsTheKeyboardTheTabulatorMovesItOnAndShortcutsStillWork) {
  session_.hand.click(tool_.onBar(0, 100));
  EXPECT_TRUE(waitUntil([this] { return tool_.shows(157, 277) != kGround; })) << "a ring around the bar";
  session_.hand.keys("Right");
  EXPECT_TRUE(tool_.getsTitleOf(0x71ABFF)) << "a press beside the indicator changes nothing";
  session_.hand.click(tool_.onBar(1, 10));
  session_.hand.keys("Shift+Tab");
  session_.hand.keys("Left");
  EXPECT_TRUE(tool_.getsTitleOf(0x71ABFE)) << "blue";
  session_.hand.keys("Ctrl+C");
  EXPECT_TRUE(waitUntil([&] { return session_.clipboard.paste() == "#71ABFE"; }));
  session_.hand.keys("Ctrl+Alt+C");
  EXPECT_TRUE(waitUntil([&] { return session_.clipboard.paste() == "Color: 113.171.254, 215.55.99, #71ABFE"; }));
  session_.hand.keys("Ctrl+C");
  EXPECT_TRUE(waitUntil([&] { return session_.clipboard.paste() == "#71ABFE"; }));
  session_.hand.keys("Left");
  EXPECT_TRUE(tool_.getsTitleOf(0x71ABFD));
  session_.hand.keys("Ctrl+V");
  EXPECT_TRUE(tool_.getsTitleOf(0x71ABFE)) << "its own clipboard";
}

// The server repeats the key, and a dialog's button would take the repeat for a press.
TEST_F(BarsTest, AHeldReturnOpensOneDialog) {
  session_.hand.press("Return");
  const xcb_window_t dialog = session_.waitForWindow("Select Color");
  std::this_thread::sleep_for(std::chrono::milliseconds(1200));
  session_.hand.release("Return");
  EXPECT_EQ(session_.windows.titled("Select Color"), std::vector{dialog});
}

TEST_F(BarsTest, AColorPickedInTheDialogGoesToTheButtonAlone) {
  session_.clipboard.copy("#12AB34");
  for (const auto& [lastKey, expected] : {std::pair{"Escape", 0x70ABFFU}, {"Return", 0x12AB34U}}) {
    tool_.click(28, 16);
    session_.bringToFront(session_.waitForWindow("Select Color"));
    for (const char* keys : {"Alt+H", "Ctrl+A", "Ctrl+V", lastKey})
      session_.hand.keys(keys);
    ASSERT_TRUE(waitUntil([&] { return session_.windows.titled("Select Color").empty(); }));
    EXPECT_TRUE(tool_.gets(expected, 28, 16)) << lastKey;
    EXPECT_EQ(tool_.title(), titleOf(0x70ABFF));
  }
}

}  // namespace
}  // namespace tavrelkin::test
