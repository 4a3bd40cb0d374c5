// Windows from the program's start to its end, with the keys and the window manager.

#include <chrono>
#include <functional>
#include <thread>
#include <utility>
#include <vector>

#include <gtest/gtest.h>

#include "driver/ToolWindow.h"

namespace tavrelkin::test {
namespace {

class WindowsTest : public ToolWindowTest {
 protected:
  // Opens another window with the keys while `front` is in front.
  ToolWindow openAnother(ToolWindow& front) {
    const auto before = session_.windows.titled("Color: ").size();
    front.keys("Ctrl+N");
    return {session_, session_.waitForWindow("Color: ", before + 1)};
  }
};

TEST_F(WindowsTest, OpenFoldedInTheFirstOnesColorAndEndTheProgramWithTheLastOne) {
  EXPECT_TRUE(tool_.getsTitleOf(0x70ABFF));
  EXPECT_EQ(session_.windows.property(tool_.window(), "WM_CLASS"), std::string("tavrelkin\0tavrelkin\0", 20));
  const auto icon = session_.windows.numbers(tool_.window(), "_NET_WM_ICON");
  ASSERT_FALSE(icon.empty());
  EXPECT_EQ(icon[0], 128U) << "the window manager's stand-in has 48";
  const Area area = session_.windows.area(tool_.window());
  EXPECT_EQ(area.width, 448);
  EXPECT_GT(area.height, 262) << "content and menu bar";
  EXPECT_LT(area.height, 300);

  ASSERT_TRUE(tool_.paste(0xFF8000));
  auto second = openAnother(tool_);
  EXPECT_TRUE(second.getsTitleOf(0xFF8000));
  ASSERT_TRUE(second.paste(0x123456));
  EXPECT_EQ(tool_.title(), titleOf(0xFF8000));
  session_.windows.close(tool_.window());
  ASSERT_TRUE(waitUntil([&] { return tool_.title().empty(); }));
  second.keys("Ctrl+F");
  ASSERT_TRUE(second.paste(0x123457)) << "goes on";
  second.keys("Ctrl+W");
  EXPECT_EQ(session_.program.waitForExit(), 0);
  EXPECT_EQ(session_.program.errors(), "");
}

TEST_F(WindowsTest, AMinimisedAboutStaysSoUntilTheUserTurnsToAWindowThatWaitsForIt) {
  constexpr int kViewMenu = 129;
  const auto second = openAnother(tool_);
  tool_.choose(kViewMenu, "Down");
  const xcb_window_t about = session_.waitForWindow("About");
  ASSERT_TRUE(waitUntil([&] { return session_.windows.hasKeyboard(about); }));
  const std::pair<const char*, std::function<void()>> ways[] = {
      {"click", [&] { tool_.click(100, 100); }},
      {"key", [&] { session_.hand.keys("Right"); }},
      {"task bar", [&] { session_.windows.activate(second.window()); }},
  };
  for (const auto& [name, turn] : ways) {
    // About may have the focus while its own request for it is still being handled; that request would undo the
    // minimising.
    session_.hand.rest();
    session_.windows.minimise(about);
    ASSERT_TRUE(waitUntil([&] { return session_.windows.hasKeyboard(tool_.window()); })) << name;
    session_.hand.rest();
    EXPECT_TRUE(session_.windows.isMinimised(about)) << name;
    turn();
    EXPECT_TRUE(waitUntil([&] { return session_.windows.hasKeyboard(about); })) << name;
    EXPECT_FALSE(session_.windows.isMinimised(about)) << name;
  }
  session_.hand.keys("Ctrl+Q");
  EXPECT_EQ(session_.program.waitForExit(), 0);
}

// Minimising ends following, so the next use of the command starts it again.
TEST_F(WindowsTest, FollowingBeginsAgainAfterMinimising) {
  const ForeignWindow foreign(session_.client, {700, 500, 240, 140});
  ToolWindow other = openAnother(tool_);
  for (const ScreenPoint at : {ScreenPoint{820, 570}, ScreenPoint{830, 565}}) {
    session_.hand.moveTo(at);
    tool_.keys("Ctrl+F");
    EXPECT_TRUE(tool_.getsPreview(foreign.previewAt(at))) << at.x;
    session_.windows.minimise(tool_.window());
    ASSERT_TRUE(waitUntil([&] { return session_.windows.isMinimised(tool_.window()); }));
    ASSERT_TRUE(other.paste(0x123456)) << "which tells that the program knows by now";
  }
}

constexpr std::uint32_t kGround = 0xCCCCCC;

// The colour controls under mouse and keyboard.
using BarsTest = UnfoldedToolWindowTest;

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
