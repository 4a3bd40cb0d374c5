// The program for a user who can't see the screen, or has no mouse.

#include <algorithm>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "driver/ForeignPrograms.h"
#include "driver/ToolWindow.h"

namespace tavrelkin::test {
namespace {

using testing::HasSubstr;

// A session with an assistive technology, which receives the program's announcements.
class AccessibilityTest : public testing::Test {
 protected:
  std::string ask(const std::vector<std::string>& command) const { return assistive_.ask(command); }
  testing::AssertionResult hears(const std::string& announcement) const { return assistive_.hears(announcement); }

  Session session_{{.messageBus = true}};
  ToolWindow tool_{session_};
  Assistive assistive_{session_.environment};
};

TEST_F(AccessibilityTest, EveryControlSaysWhatItIsAndWhatIsDoneCountsAsTheUsersGesture) {
  ask({"set", "Red", "10"});
  ask({"press", "Show controls"});
  EXPECT_TRUE(hears("property-change:accessible-name|push button|Hide controls|"));
  EXPECT_EQ(tool_.title(), titleOf(0x70ABFF)) << "what is below the fold is out of reach";
  const std::string tree = ask({"tree", "Color: "});
  for (const char* line : {
           "frame|Color: 112.171.255, #70ABFF|||",
           "push button|Color|light blue, 112.171.255, #70ABFF||",
           "image|Not web-safe|This color is not Web Safe...||",
           "image|Preview|Center: white, 255.255.255, #FFFFFF||",
           "label|{0, 0}|||",
           "slider|Luminosity|Luminosity 100|255|showing",
           "slider|Zoom||1|",
           "menu item|Follow mouse|||",
       })
    EXPECT_THAT(tree, HasSubstr(line));

  ask({"set", "Red", "10"});
  EXPECT_TRUE(tool_.getsTitleOf(0x0AABFF));
  EXPECT_TRUE(hears("property-change:accessible-value|slider|Red|"));
  ask({"focus", "Red"});
  EXPECT_TRUE(hears("state-changed:focused|slider|Red|"));
  tool_.keys("Right");
  EXPECT_TRUE(tool_.getsTitleOf(0x0BABFF));
  EXPECT_TRUE(hears("property-change:accessible-description|slider|Red|Red 11|11|"));
  ask({"press", "Make web-safe"});
  EXPECT_TRUE(tool_.getsTitleOf(0x0099FF));
}

TEST_F(AccessibilityTest, CellsAreReachedByKeysAloneAndTellWhatBecomesOfThem) {
  tool_.keys("Ctrl+S");
  EXPECT_TRUE(hears("property-change:accessible-name|image|Suggestions|"));
  for (const char* key : {"Tab", "Down", "Down", "Right"})
    tool_.keys(key);
  EXPECT_TRUE(hears("state-changed:focused|push button|grayish orange, 170.144.106, #AA906A|"));
  tool_.keys("Return");
  EXPECT_TRUE(tool_.getsTitleOf(0xAA906A));
  ask({"press", "light cyan, 112.242.255, #70F2FF"});
  EXPECT_TRUE(tool_.getsTitleOf(0x70F2FF)) << "the suggestions stay until they are asked for again";

  tool_.keys("Ctrl+Shift+N");
  ProgramWindow palette(session_, session_.waitForWindow("Untitled Colors"), 161);
  palette.keys("Right");
  EXPECT_TRUE(hears("state-changed:selected|list item|white, 255.255.255, #FFFFFF||"));
  EXPECT_TRUE(hears("state-changed:focused|list item|white, 255.255.255, #FFFFFF||")) << "who asks has been told";
  palette.paste("#FF8000");
  EXPECT_TRUE(hears("property-change:accessible-name|list item|orange, 255.128.0, #FF8000||"));
  EXPECT_THAT(ask({"tree", "Untitled"}),
              HasSubstr("list|Palette|||focused showing\nlist item|white, 255.255.255, #FFFFFF|||showing\n"
                        "list item|orange, 255.128.0, #FF8000|||focused selected showing\n"));
}

TEST_F(AccessibilityTest, APreviewThatFollowsIsToldOfWhenItRests) {
  const ScreenPoint swatch = tool_.onScreen(28, 16);
  session_.hand.moveTo({swatch.x, swatch.y + 300});
  tool_.keys("Ctrl+F");
  EXPECT_TRUE(hears("|Preview|Center: black, 0.0.0, #000000|"));
  for (int y = 300; y >= 0; --y)
    session_.hand.moveTo({swatch.x, swatch.y + y});
  EXPECT_TRUE(hears("|Preview|Center: light blue, 112.171.255, #70ABFF|"));
  const std::string heard = assistive_.heard();
  EXPECT_LT(std::ranges::count(heard, '\n'), 40) << heard;
}

}  // namespace
}  // namespace tavrelkin::test
