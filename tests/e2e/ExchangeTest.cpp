// Colours that are dragged or copied to and from other windows and programs, including faulty ones.

#include <chrono>
#include <functional>

#include <gtest/gtest.h>

#include "driver/ForeignPrograms.h"
#include "driver/ToolWindow.h"

namespace tavrelkin::test {
namespace {

using namespace std::chrono_literals;

class ExchangeTest : public UnfoldedToolWindowTest {
 protected:
  // A drag has ended when both programs say so; only then may the next one begin.
  void dragOut(const ForeignColors& foreign, ScreenPoint from, ScreenPoint to) {
    const auto before = foreign.said().size();
    session_.hand.drag(from, to);
    ASSERT_TRUE(waitUntil([&] { return foreign.said().find("over", before) != std::string::npos; }));
  }

  // Does something that a fault may delay, and measures the time until the window has responded, and the cost.
  void expectNoHarm(const std::function<void()>& act) {
    const int memory = session_.program.status("VmHWM");
    const auto before = std::chrono::steady_clock::now();
    act();
    EXPECT_TRUE(tool_.paste(++pasted_));
    EXPECT_LT(std::chrono::steady_clock::now() - before, 4s);
    EXPECT_LT(session_.program.status("VmHWM"), memory + 30'000);
  }

  std::uint32_t pasted_ = 0x123456;
};

TEST_F(ExchangeTest, ColorsAreDraggedFromWindowToWindow) {
  tool_.keys("Ctrl+N");
  ToolWindow other(session_, session_.waitForWindow("Color: ", 2));
  session_.bringToFront(other.window());
  other.moveTo(620, 40);
  other.unfold();
  ASSERT_TRUE(other.paste(0x204060));

  session_.hand.altDrag(tool_.onSwatch(), other.onBar(1, 20));
  EXPECT_TRUE(other.getsTitleOf(0x20AB60)) << "a bar takes its channel";
  session_.hand.altDrag(tool_.onScreen(28, 16), other.onScreen(90, 16));
  EXPECT_TRUE(other.gets(0x70ABFF, 28, 16)) << "a button takes all";

  const ScreenPoint places[] = {tool_.onScreen(90, 310), other.onSwatch(), {300, 700}};
  for (const ScreenPoint& place : places)
    session_.hand.altDrag(tool_.onSwatch(), place);
  session_.hand.drag(tool_.onSwatch(), other.onBar(0, 20));
  session_.hand.altDrag(tool_.onSwatch(), other.onBar(1, 20), [this] { session_.hand.keys("Escape"); });
  other.keys("Ctrl+C");
  EXPECT_TRUE(waitUntil([&] { return session_.clipboard.paste() == "#20AB60"; }));
  EXPECT_EQ(other.title(), titleOf(0x20AB60)) << "one that ends nowhere changes nothing";
  ASSERT_TRUE(other.paste(0x204061));
  EXPECT_EQ(tool_.title(), titleOf(0x70ABFF));

  session_.hand.altDrag(tool_.onSwatch(), tool_.onScreen(75, 390), [&] {
    session_.windows.close(tool_.window());
    EXPECT_TRUE(waitUntil([&] { return tool_.title().empty(); }));
    session_.hand.moveTo(other.onBar(1, 20));
    session_.hand.moveTo(other.onBar(1, 22));
  });
  EXPECT_TRUE(other.paste(0x102030)) << "alive, though the window is gone that the drag came from";
}

TEST_F(ExchangeTest, AnotherProgramGivesAndTakesColors) {
  const ForeignColors foreign(session_.server);
  const struct {
    ScreenPoint from;
    int bar;
    std::uint32_t expected;
    const char* why;
  } rows[] = {
      {ForeignColors::kButton, 0, 0x12ABFF, "a colour"},
      {ForeignColors::kLongColorAndText, 1, 0x12C0FF, "the text alone counts"},
      {ForeignColors::kText, 0, 0xC0C0FF, "a text"},
      {ForeignColors::kShortColor, 1, 0xC0C0FF, "a malformed colour is none"},
  };
  for (const auto& row : rows) {
    dragOut(foreign, row.from, tool_.onBar(row.bar, 20));
    EXPECT_TRUE(tool_.getsTitleOf(row.expected)) << row.why;
  }
  session_.hand.altDrag(tool_.onSwatch(), ForeignColors::kButton);
  EXPECT_TRUE(waitUntil([&] { return foreign.said().ends_with("C0C0C0C0FFFF\n"); })) << foreign.said();
}

TEST_F(ExchangeTest, HugeAndSilentDropsAndFilesAreNoColors) {
  for (const ScreenPoint& from : {ForeignColors::kFile, ForeignColors::kHugeText, ForeignColors::kSilence}) {
    const ForeignColors foreign(session_.server);
    const std::string title = tool_.title();
    expectNoHarm([&] {
      session_.hand.drag(from, tool_.onBar(0, 20));
      EXPECT_EQ(tool_.title(), title) << from.x;
    });
  }
}

TEST_F(ExchangeTest, AHugeClipboardIsNotReadWholeAndASilentOneSoonGivenUp) {
  std::string huge = "1,2,3..";
  huge.resize(100'000'000, 'x');
  session_.clipboard.copy(huge);
  expectNoHarm([this] { tool_.keys("Ctrl+V"); });

  const xcb_window_t owner = session_.client.open({1200, 700, 10, 10});
  xcb_set_selection_owner(session_.client.connection(), owner, session_.client.atom("CLIPBOARD"), XCB_CURRENT_TIME);
  session_.client.sync();
  expectNoHarm([this] { tool_.keys("Ctrl+V"); });
}

// Such a drag would make the toolkit treat the window as another program's.
TEST_F(ToolWindowTest, ADragThatSaysItComesFromTheWindowItselfLeavesItsEars) {
  constexpr std::uint32_t kVersion = 5U << 24;
  session_.client.tell(tool_.window(), 0, tool_.window(), "XdndEnter", tool_.window(), kVersion);
  tool_.unfold();
}

}  // namespace
}  // namespace tavrelkin::test
