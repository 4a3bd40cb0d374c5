// "Follow mouse" and what holds or overlays its preview, over another program's window.

#include <utility>

#include <gtest/gtest.h>

#include "e2e/support/ForeignWindow.h"
#include "e2e/support/ToolWindow.h"

namespace tavrelkin::test {
namespace {

class FollowTest : public testing::Test {
 protected:
  void follow(ScreenPoint at) {
    session_.hand.moveTo(at);
    tool_.keys("Ctrl+F");
  }

  Session session_;
  ToolWindow tool_{session_};
  ForeignWindow foreign_{session_.client, {700, 500, 240, 140}};
};

TEST_F(FollowTest, ShowsEachPixelAroundThePointerAtEachZoom) {
  tool_.unfold();
  tool_.keys("Ctrl+F");
  for (const int zoom : {1, 2, 3}) {
    if (zoom > 1) tool_.zoomIn(zoom - 1, zoom);
    for (const ScreenPoint at : {ScreenPoint{760, 530}, ScreenPoint{811, 567}}) {
      session_.hand.moveTo(at);
      auto expected = foreign_.previewAt(at);
      expected.zoom = zoom;
      EXPECT_TRUE(tool_.getsPreview(expected)) << "zoom " << zoom << " at " << at.x << ", " << at.y;
    }
  }
}

TEST_F(FollowTest, SeesAChangingScreenUnderAStillPointer) {
  const ScreenPoint at{820, 570};
  follow(at);
  for (std::uint32_t number = 1; number <= 5; ++number) {
    foreign_.paint(number);
    EXPECT_TRUE(tool_.getsPreview(foreign_.previewAt(at))) << number;
  }
}

TEST_F(FollowTest, EndsOnTheSameKeyAndLooksNoMore) {
  const ScreenPoint first{820, 570};
  follow(first);
  ASSERT_TRUE(tool_.getsPreview(foreign_.previewAt(first)));
  tool_.keys("Ctrl+F");

  // A paste is answered after the keys before it, and draws nothing in the preview.
  ASSERT_TRUE(tool_.paste(0x010203));
  const Pixels before = tool_.preview();
  session_.hand.moveTo({780, 540});
  ASSERT_TRUE(tool_.paste(0x040506));
  EXPECT_EQ(tool_.preview(), before);
}

TEST_F(FollowTest, LocksHoldThePreview) {
  const ScreenPoint held{790, 560};
  const ScreenPoint away{840, 575};
  const struct {
    const char* keys;
    ScreenPoint expected;
    std::uint32_t mark;
  } rows[] = {
      {"Ctrl+X", {held.x, away.y}, 0x000001},
      {"Ctrl+Y", {away.x, held.y}, 0x000002},
      {"Ctrl+L", held, 0x000003},
  };
  follow(held);
  for (const auto& row : rows) {
    SCOPED_TRACE(row.keys);
    session_.hand.moveTo(held);
    ASSERT_TRUE(tool_.getsPreview(foreign_.previewAt(held)));
    tool_.keys(row.keys);
    // A lock holds the place where the pointer is when the program hears the keys; a paste tells that it has.
    ASSERT_TRUE(tool_.paste(row.mark));
    session_.hand.moveTo(away);
    EXPECT_TRUE(tool_.getsPreview(foreign_.previewAt(row.expected)));

    tool_.keys(row.keys);
    EXPECT_TRUE(tool_.getsPreview(foreign_.previewAt(away))) << "unlocked";
  }
}

TEST_F(FollowTest, GuidesLieOnTheEdgesOfTheCells) {
  const ScreenPoint at{810, 565};
  follow(at);
  tool_.keys("Ctrl+G");
  auto expected = foreign_.previewAt(at);
  expected.hasGuides = true;
  EXPECT_TRUE(tool_.getsPreview(expected));
  tool_.keys("Ctrl+G");
  EXPECT_TRUE(tool_.getsPreview(foreign_.previewAt(at))) << "off again";
}

TEST_F(FollowTest, ShowsTheScreenBesideItsEdgesAsBlack) {
  const Area corner{1160, 680, 120, 120};
  const ForeignWindow inCorner(session_.client, corner);
  const ScreenPoint at{1279, 799};
  auto expected = inCorner.previewAt(at);
  expected.screen = [&](int x, int y) { return x > 1279 || y > 799 ? 0 : inCorner.shown({x, y}); };
  follow(at);
  EXPECT_TRUE(tool_.getsPreview(expected));
}

TEST_F(FollowTest, GoesOnWhenTheScreenChangesItsSize) {
  const ForeignWindow near(session_.client, {400, 340, 200, 120});
  const ScreenPoint at{500, 400};
  follow({820, 570});
  ASSERT_TRUE(tool_.getsPreview(foreign_.previewAt({820, 570})));
  for (const auto& [width, height] : {std::pair(640, 480), std::pair(1280, 800)}) {
    ASSERT_TRUE(session_.client.resizeScreen(static_cast<std::uint16_t>(width), static_cast<std::uint16_t>(height)));
    session_.hand.moveTo(at);
    EXPECT_TRUE(tool_.getsPreview(near.previewAt(at))) << width;
  }
}

}  // namespace
}  // namespace tavrelkin::test
