// The program as someone meets it who doesn't see the screen, or has no mouse.

#include <algorithm>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "e2e/support/Assistive.h"
#include "e2e/support/ToolWindow.h"
#include "e2e/support/WaitUntil.h"

namespace tavrelkin::test {
namespace {

using testing::HasSubstr;

class AccessibilityTest : public testing::Test {
 protected:
  testing::AssertionResult hears(const std::string& announcement) const {
    if (waitUntil([&] { return assistive_.heard().find(announcement) != std::string::npos; }))
      return testing::AssertionSuccess();
    return testing::AssertionFailure() << announcement << " is not among\n" << assistive_.heard();
  }

  Session session_{{.messageBus = true}};
  ToolWindow tool_{session_};
  Assistive assistive_{session_};
};

TEST_F(AccessibilityTest, EveryControlSaysWhatItIs) {
  tool_.unfold();
  const std::string tree = assistive_.ask({"tree", "Color: "});
  for (const char* line : {
           "frame|Color: 112.171.255, #70ABFF|||",
           "push button|Color|light blue, 112.171.255, #70ABFF||",
           "image|Not web-safe|This color is not Web Safe...||",
           "push button|Make web-safe|light blue, 102.153.255, #6699FF||",
           "image|Preview|Center: white, 255.255.255, #FFFFFF||",
           "push button|Hide controls|||",
           "label|{0, 0}|||",
           "image|Selected color|light blue, 112.171.255, #70ABFF||",
           "slider|Red|Red 112|112|showing",
           "slider|Luminosity|Luminosity 100|255|showing",
           "slider|Zoom||1|",
           "menu item|Follow mouse|||",
       })
    EXPECT_THAT(tree, HasSubstr(line));
}

TEST_F(AccessibilityTest, WhatIsDoneCountsAsTheUsersGesture) {
  assistive_.ask({"set", "Red", "10"});
  assistive_.ask({"press", "Show controls"});
  EXPECT_TRUE(hears("property-change:accessible-name|push button|Hide controls|"));
  EXPECT_EQ(tool_.title(), titleOf(0x70ABFF)) << "what is below the fold is out of reach";
  assistive_.ask({"set", "Red", "10"});
  EXPECT_TRUE(tool_.getsTitleOf(0x0AABFF));
  EXPECT_TRUE(hears("property-change:accessible-value|slider|Red|"));
  assistive_.ask({"focus", "Red"});
  EXPECT_TRUE(hears("state-changed:focused|slider|Red|"));
  tool_.keys("Right");
  EXPECT_TRUE(tool_.getsTitleOf(0x0BABFF));
  EXPECT_TRUE(hears("property-change:accessible-description|slider|Red|Red 11|11|"));
  assistive_.ask({"press", "Make web-safe"});
  EXPECT_TRUE(tool_.getsTitleOf(0x0099FF));
}

TEST_F(AccessibilityTest, ASuggestionIsChosenByKeysAlone) {
  tool_.keys("Ctrl+S");
  EXPECT_TRUE(hears("property-change:accessible-name|image|Suggestions|"));
  for (const char* key : {"Tab", "Down", "Down", "Right"})
    tool_.keys(key);
  EXPECT_TRUE(hears("state-changed:focused|push button|grayish orange, 170.144.106, #AA906A|"));
  tool_.keys("Return");
  EXPECT_TRUE(tool_.getsTitleOf(0xAA906A));
  assistive_.ask({"press", "light cyan, 112.242.255, #70F2FF"});
  EXPECT_TRUE(tool_.getsTitleOf(0x70F2FF)) << "the suggestions stay until they are asked for again";
}

TEST_F(AccessibilityTest, APaletteTellsItsSelectionAndWhatIsPutThere) {
  tool_.keys("Ctrl+Shift+N");
  ProgramWindow palette(session_, session_.waitForWindow("Untitled Colors"), 161);
  palette.keys("Right");
  EXPECT_TRUE(hears("state-changed:selected|list item|white, 255.255.255, #FFFFFF||"));
  session_.clipboard.copy("#FF8000");
  palette.keys("Ctrl+V");
  EXPECT_TRUE(hears("property-change:accessible-name|list item|orange, 255.128.0, #FF8000||"));
  EXPECT_THAT(assistive_.ask({"tree", "Untitled"}),
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
