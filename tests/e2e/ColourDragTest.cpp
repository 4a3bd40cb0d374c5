// Colours that travel by drag: between two windows, and to and from another program.

#include <memory>

#include <gtest/gtest.h>

#include "e2e/support/ForeignColours.h"
#include "e2e/support/ToolWindow.h"
#include "e2e/support/WaitUntil.h"

namespace tavrelkin::test {
namespace {

constexpr std::uint32_t kStart = 0x70ABFF;

using ColourDragTest = UnfoldedToolWindowTest;

class TwoWindowsDragTest : public ColourDragTest {
 protected:
  void SetUp() override {
    ColourDragTest::SetUp();
    tool_.keys("Ctrl+N");
    other_ = std::make_unique<ToolWindow>(session_, session_.waitForWindow("Color: ", 2));
    session_.bringToFront(other_->window());
    other_->moveTo(620, 40);
    other_->unfold();
    ASSERT_TRUE(other_->paste(0x204060));
  }

  std::unique_ptr<ToolWindow> other_;
};

TEST_F(TwoWindowsDragTest, ABarTakesItsChannelOfTheColourFromTheOtherWindowsSwatch) {
  session_.hand.altDrag(tool_.onSwatch(), other_->onBar(1, 20));
  EXPECT_TRUE(other_->getsTitleOf(0x20AB60));
  EXPECT_EQ(tool_.title(), titleOf(kStart));
}

TEST_F(TwoWindowsDragTest, AButtonTakesTheColourOfTheOther) {
  session_.hand.altDrag(tool_.onScreen(28, 16), other_->onScreen(90, 16));
  EXPECT_TRUE(other_->gets(kStart, 28, 16));
  EXPECT_EQ(other_->title(), titleOf(0x204060));
}

TEST_F(TwoWindowsDragTest, ADragThatEndsNowhereChangesNothing) {
  const ScreenPoint places[] = {tool_.onScreen(90, 310), other_->onSwatch(), {300, 700}};
  for (const ScreenPoint& place : places)
    session_.hand.altDrag(tool_.onSwatch(), place);
  session_.hand.drag(tool_.onSwatch(), other_->onBar(0, 20));
  session_.hand.beginAltDrag(tool_.onSwatch(), other_->onBar(1, 20));
  session_.hand.keys("Escape");
  session_.hand.endAltDrag();
  ASSERT_TRUE(other_->paste(0x204061)) << "a sign that all before is done";
  EXPECT_EQ(tool_.title(), titleOf(kStart));
  EXPECT_TRUE(other_->gets(0x204061, 75, 296));
}

TEST_F(TwoWindowsDragTest, ADragOutlivesTheWindowItCameFrom) {
  session_.hand.beginAltDrag(tool_.onSwatch(), tool_.onScreen(75, 390));
  session_.windows.close(tool_.window());
  EXPECT_TRUE(waitUntil([this] { return session_.windows.titled("Color: ").size() == 1; }));
  session_.hand.moveTo(other_->onBar(1, 20));
  session_.hand.moveTo(other_->onBar(1, 22));
  session_.hand.endAltDrag();
  EXPECT_TRUE(other_->paste(0x102030)) << "still alive";
}

// A drag is over when both programs say so; only then does the next one begin.
void dragOut(Session& session, const ForeignColours& foreign, ScreenPoint from, ScreenPoint to) {
  const int before = foreign.drags();
  session.hand.drag(from, to);
  ASSERT_TRUE(waitUntil([&] { return foreign.drags() > before; }));
}

TEST_F(ColourDragTest, AnotherProgramGivesColours) {
  const ForeignColours foreign(session_.server);
  const struct {
    ScreenPoint from;
    int bar;
    std::uint32_t expected;
    const char* why;
  } rows[] = {
      {foreign.kButton, 0, 0x12ABFF, "a colour"},
      {foreign.kLongColourAndText, 1, 0x12C0FF, "the text alone counts"},
      {foreign.kText, 0, 0xC0C0FF, "a text"},
      {foreign.kShortColour, 1, 0xC0C0FF, "a malformed colour is none"},
  };
  for (const auto& row : rows) {
    dragOut(session_, foreign, row.from, tool_.onBar(row.bar, 20));
    EXPECT_TRUE(tool_.getsTitleOf(row.expected)) << row.why;
  }
}

TEST_F(ColourDragTest, AnotherProgramTakesColours) {
  const ForeignColours foreign(session_.server);
  session_.hand.altDrag(tool_.onSwatch(), foreign.kButton);
  EXPECT_TRUE(waitUntil([&] { return foreign.taken() == "7070ABABFFFF"; })) << foreign.taken();
}

}  // namespace
}  // namespace tavrelkin::test
