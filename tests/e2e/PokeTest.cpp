// Taking a colour from the screen: by the Poke command, and by the mouse from inside the preview.

#include <gtest/gtest.h>

#include "e2e/support/ForeignWindow.h"
#include "e2e/support/ToolWindow.h"

namespace tavrelkin::test {
namespace {

class PokeTest : public testing::Test {
 protected:
  void poke(ScreenPoint at) {
    session_.hand.moveTo(at);
    tool_.keys("Ctrl+Alt+P");
  }

  Session session_;
  ToolWindow tool_{session_};
  ForeignWindow foreign_{session_.client, {700, 500, 240, 140}};
};

TEST_F(PokeTest, TakesThePixelOfAnotherProgramUnderThePointer) {
  for (const ScreenPoint at : {ScreenPoint{760, 530}, ScreenPoint{820, 570}}) {
    poke(at);
    EXPECT_TRUE(tool_.getsTitleOf(foreign_.shown(at)));
    EXPECT_TRUE(tool_.getsPreview(foreign_.previewAt(at))) << "one sample, without following";
  }
}

TEST_F(PokeTest, TakesThePixelUnderThePointerWhileTheLocksHoldThePreview) {
  const ScreenPoint held{780, 550};
  const ScreenPoint away{830, 560};
  session_.hand.moveTo(held);
  tool_.keys("Ctrl+L");
  tool_.keys("Ctrl+Alt+P");
  ASSERT_TRUE(tool_.getsTitleOf(foreign_.shown(held)));
  poke(away);
  EXPECT_TRUE(tool_.getsTitleOf(foreign_.shown(away)));
  EXPECT_TRUE(tool_.getsPreview(foreign_.previewAt(held)));
}

TEST_F(PokeTest, AClickInThePreviewTakesThePixelThatItShowsThere) {
  const ScreenPoint at{820, 570};
  poke(at);
  const auto preview = foreign_.previewAt(at);
  ASSERT_TRUE(tool_.getsPreview(preview));
  const struct {
    const char* where;
    int x, y;
    std::uint32_t expected;
  } rows[] = {
      {"a cell", 101, 50, foreign_.shown(preview.enlarged(101, 50))},
      {"the frame", 407, 191, 0xFFFFFF},
      {"the last cell", 406, 190, foreign_.shown(preview.enlarged(406, 190))},
      {"the middle of the marker", 206, 98, foreign_.shown(at)},
  };
  for (const auto& row : rows) {
    const ScreenPoint place = tool_.onPreview(row.x, row.y);
    session_.hand.click(place);
    EXPECT_TRUE(tool_.getsTitleOf(row.expected)) << row.where;
  }
  EXPECT_TRUE(tool_.getsPreview(preview)) << "a click looks nowhere else";
}

TEST_F(PokeTest, ADragOutOfThePreviewFollowsUntilItTakesThePixelWhereItEnds) {
  session_.hand.moveTo(tool_.onPreview(100, 100));
  session_.hand.pressButton();
  for (const ScreenPoint at : {ScreenPoint{760, 540}, ScreenPoint{820, 570}}) {
    session_.hand.moveTo(at);
    EXPECT_TRUE(tool_.getsPreview(foreign_.previewAt(at)));
    EXPECT_EQ(tool_.title(), titleOf(0x70ABFF)) << "not before the button goes up";
  }
  session_.hand.releaseButton();
  EXPECT_TRUE(tool_.getsTitleOf(foreign_.shown({820, 570})));
}

}  // namespace
}  // namespace tavrelkin::test
