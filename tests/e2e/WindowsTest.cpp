// From the program's start to its end, by the keys and by the window manager.

#include <gtest/gtest.h>

#include "e2e/support/ForeignWindow.h"
#include "e2e/support/ToolWindow.h"
#include "e2e/support/WaitUntil.h"

namespace tavrelkin::test {
namespace {

class WindowsTest : public testing::Test {
 protected:
  // A second one by the keys, while `front` is in front.
  ToolWindow openAnother(ToolWindow& front) {
    const auto before = session_.windows.titled("Color: ");
    front.keys("Ctrl+N");
    EXPECT_TRUE(waitUntil([&] { return count() > before.size(); }));
    const auto after = session_.windows.titled("Color: ");
    session_.bringToFront(after.back());
    return {session_, after.back()};
  }

  std::size_t count() { return session_.windows.titled("Color: ").size(); }

  void expectOrderlyExit() {
    EXPECT_EQ(session_.program.waitForExit(), 0);
    EXPECT_EQ(session_.program.errors(), "");
  }

  Session session_;
  ToolWindow tool_{session_};
};

TEST_F(WindowsTest, OpensFolded) {
  EXPECT_TRUE(tool_.getsTitleOf(0x70ABFF));
  EXPECT_EQ(session_.windows.className(tool_.window()), std::string("tavrelkin\0tavrelkin\0", 20));
  EXPECT_EQ(session_.windows.iconWidth(tool_.window()), 128U) << "the window manager's stand-in has 48";
  const Area area = session_.windows.area(tool_.window());
  EXPECT_EQ(area.width, 448);
  EXPECT_GT(area.height, 262) << "content and menu bar";
  EXPECT_LT(area.height, 300);
  tool_.unfold();
}

TEST_F(WindowsTest, NewOnesTakeTheColourOfTheFirst) {
  ASSERT_TRUE(tool_.paste(0xFF8000));
  auto second = openAnother(tool_);
  EXPECT_TRUE(second.getsTitleOf(0xFF8000));

  ASSERT_TRUE(second.paste(0x123456));
  EXPECT_TRUE(openAnother(second).getsTitleOf(0xFF8000));
  EXPECT_TRUE(tool_.getsTitleOf(0xFF8000));
}

TEST_F(WindowsTest, TheProgramEndsWithItsLastOne) {
  auto second = openAnother(tool_);
  session_.windows.close(tool_.window());
  ASSERT_TRUE(waitUntil([&] { return count() == 1; }));
  ASSERT_TRUE(second.paste(0x123456)) << "goes on";
  second.keys("Ctrl+W");
  expectOrderlyExit();
}

// Minimising ends it, so that the first use of the command afterwards begins again.
TEST_F(WindowsTest, FollowsAgainAfterMinimising) {
  const ForeignWindow foreign(session_.client, {960, 600, 200, 120});
  auto second = openAnother(tool_);
  session_.hand.moveTo({1040, 650});
  tool_.keys("Ctrl+F");
  ASSERT_TRUE(tool_.getsPreview(foreign.previewAt({1040, 650})));

  session_.windows.minimise(tool_.window());
  ASSERT_TRUE(waitUntil([&] { return session_.windows.isMinimised(tool_.window()); }));
  ASSERT_TRUE(second.paste(0x123456)) << "which tells that the program knows by now";
  session_.hand.moveTo({1070, 665});
  tool_.keys("Ctrl+F");
  EXPECT_TRUE(tool_.getsPreview(foreign.previewAt({1070, 665})));
}

TEST_F(WindowsTest, ClosesWhileFollowing) {
  tool_.keys("Ctrl+F");
  tool_.keys("Ctrl+W");
  expectOrderlyExit();
}

TEST_F(WindowsTest, QuitsWhileFollowing) {
  const ForeignWindow foreign(session_.client, {700, 500, 240, 140});
  session_.hand.moveTo({820, 570});
  tool_.keys("Ctrl+F");
  ASSERT_TRUE(tool_.getsPreview(foreign.previewAt({820, 570})));
  tool_.keys("Ctrl+Q");
  expectOrderlyExit();
}

TEST_F(WindowsTest, TenFollowAndQuit) {
  const ForeignWindow foreign(session_.client, {960, 600, 200, 120});
  const ScreenPoint at{1060, 660};
  session_.hand.moveTo(at);
  tool_.keys("Ctrl+F");
  auto last = tool_.window();
  for (int i = 2; i <= 10; ++i) {
    ToolWindow front(session_, last);
    auto opened = openAnother(front);
    opened.keys("Ctrl+F");
    last = opened.window();
  }
  EXPECT_EQ(count(), 10U);
  ToolWindow front(session_, last);
  EXPECT_TRUE(front.getsPreview(foreign.previewAt(at)));
  front.keys("Ctrl+Q");
  expectOrderlyExit();
}

TEST_F(WindowsTest, EndsWithAMessageWhenTheServerDoes) {
  tool_.keys("Ctrl+F");
  session_.server.kill();
  const auto status = session_.program.waitForExit();
  ASSERT_TRUE(status) << "still running";
  EXPECT_EQ(*status, 1);
  EXPECT_NE(session_.program.errors(), "");
}

}  // namespace
}  // namespace tavrelkin::test
