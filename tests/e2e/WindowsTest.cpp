// Windows from the program's start to its end, with the keys and the window manager.

#include <functional>
#include <utility>

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

}  // namespace
}  // namespace tavrelkin::test
