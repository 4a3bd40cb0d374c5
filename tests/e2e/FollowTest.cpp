// "Follow mouse" over another program's window.

#include <utility>

#include <gtest/gtest.h>

#include "driver/ToolWindow.h"

namespace tavrelkin::test {
namespace {

class FollowTest : public UnfoldedToolWindowTest {
 protected:
  ForeignWindow foreign_{session_.client, {700, 500, 240, 140}};
};

TEST_F(FollowTest, ShowsEachPixelAroundThePointerUntilTheSameKeys) {
  const ScreenPoint last{811, 567};
  tool_.keys("Ctrl+F");
  for (const int zoom : {1, 2, 3}) {
    tool_.zoomIn(std::max(zoom - 1, 1), zoom);
    for (const ScreenPoint at : {ScreenPoint{760, 530}, last}) {
      session_.hand.moveTo(at);
      EXPECT_TRUE(tool_.getsPreview(foreign_.previewAt(at, zoom))) << "zoom " << zoom << " at " << at.x;
    }
  }
  tool_.keys("Ctrl+F");
  // The program handles the paste after the keys before it, and a paste draws nothing in the preview.
  ASSERT_TRUE(tool_.paste(0x010203));
  session_.hand.moveTo({780, 540});
  ASSERT_TRUE(tool_.paste(0x040506));
  EXPECT_TRUE(tool_.getsPreview(foreign_.previewAt(last, 3)));
}

TEST_F(FollowTest, GoesOnWhenTheScreenChangesItsSize) {
  const ForeignWindow near(session_.client, {400, 430, 200, 120});
  const ScreenPoint at{500, 455};
  tool_.keys("Ctrl+F");
  for (const auto& [width, height] : {std::pair{1280, 800}, {640, 480}, {1280, 800}}) {
    session_.client.resizeScreen(width, height);
    session_.hand.moveTo(at);
    auto expected = near.previewAt(at);
    expected.screen = [&, end = height](int x, int y) { return y < end ? near.shown({x, y}) : 0; };
    EXPECT_TRUE(tool_.getsPreview(expected)) << width;
  }
}

// Minimising ends following, so the next use of the command starts it again.
TEST_F(FollowTest, BeginsAgainAfterMinimising) {
  tool_.keys("Ctrl+N");
  ToolWindow other(session_, session_.waitForWindow("Color: ", 2));
  for (const ScreenPoint at : {ScreenPoint{820, 570}, ScreenPoint{830, 565}}) {
    session_.hand.moveTo(at);
    tool_.keys("Ctrl+F");
    EXPECT_TRUE(tool_.getsPreview(foreign_.previewAt(at))) << at.x;
    session_.windows.minimise(tool_.window());
    ASSERT_TRUE(waitUntil([&] { return session_.windows.isMinimised(tool_.window()); }));
    ASSERT_TRUE(other.paste(0x123456)) << "which tells that the program knows by now";
  }
}

}  // namespace
}  // namespace tavrelkin::test
