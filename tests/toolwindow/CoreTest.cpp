// The tool window itself: its selected colour and the controls that show and change it.

#include <algorithm>
#include <set>

#include <Qt>

#include "runtime/core/concurrency/RuntimeBackgroundTask.h"
#include "runtime/toolkit/Clipboard.h"
#include "toolwindow/ToolWindowTest.h"

namespace tavrelkin {
namespace {

using CoreTest = ToolWindowTest;

TEST_F(CoreTest, OpensIdleAtTheStartColor) {
  EXPECT_EQ(window->Title.get(), "Color: 112.171.255, #70ABFF");
  EXPECT_EQ(window->view0_lblColor.Text.get(), "Color: 112.171.255, 215.56.100, #70ABFF");
  EXPECT_FALSE(window->rTIP.Visible);
  EXPECT_TRUE(fake().pixelsRead.empty());
  EXPECT_FALSE(fake().nextAlarm());
  EXPECT_EQ(firstFault([](Int32, Int32) { return kWhite; }), "");
}

TEST_F(CoreTest, TheTabulatorVisitsWhatTakesKeysAndIsInSight) {
  auto& bar = window->cmdMixer;
  EXPECT_EQ(window->control("cmdMixer", 3), &bar[3]);
  const auto visits = [this](const std::vector<const RectControl*>& order) {
    window->cmdColor.SetFocus();
    ASSERT_TRUE(waitUntil([&] { return gesture::hasKeyboard(window->cmdColor); }));
    for (const RectControl* next : order) {
      EXPECT_TRUE(gesture::hasKeyboard(*next)) << next->Name() << " " << next->Index;
      gesture::key(*next, Qt::Key_Tab);
    }
    EXPECT_TRUE(gesture::hasKeyboard(window->cmdColor)) << "from the last to the first";
  };
  window->Height = 400;
  visits({&window->cmdColor, &window->imgScreen, &window->DisclosureTriangle1, &window->slZoom, &bar[4], &bar[5],
          &bar[2], &bar[1], &bar[0], &bar[3], &window->cmdMakeWebSafe});
  window->Height = 262;
  visits({&window->cmdColor, &window->imgScreen, &window->DisclosureTriangle1, &window->cmdMakeWebSafe});
}

TEST_F(CoreTest, WhatIsFoldedAwayGivesTheKeyboardToTheTriangle) {
  for (RectControl* control : std::initializer_list<RectControl*>{&window->cmdMixer[5], &window->slZoom}) {
    window->Height = 400;
    control->SetFocus();
    ASSERT_TRUE(waitUntil([&] { return gesture::hasKeyboard(*control); }));
    window->DisclosureTriangle1_Action();
    EXPECT_TRUE(gesture::hasKeyboard(window->DisclosureTriangle1)) << control->Name();
  }
  window->imgScreen.SetFocus();
  window->Height = 400;
  window->Height = 262;
  EXPECT_TRUE(gesture::hasKeyboard(window->imgScreen)) << "in sight all the time";
}

TEST_F(CoreTest, TheWebSafePairShowsForAnyOtherColor) {
  const std::tuple<std::uint32_t, bool, std::uint32_t> rows[] = {
      {0x70ABFF, true, 0x6699FF}, {0xFF9900, false, 0x6699FF}, {0xFF00FE, true, 0xFF00FF}};
  for (const auto& [color, unsafe, box] : rows) {
    window->setColor(Color{color}, false);
    EXPECT_EQ(window->imgWebSafe.Visible, unsafe) << color;
    EXPECT_EQ(window->cmdMakeWebSafe.Visible, unsafe) << color;
    EXPECT_EQ(window->cmdMakeWebSafe.Value, Color{box}) << color;
  }
  EXPECT_EQ(window->imgWebSafe.Graphics().Pixel(4, 3), Color{0xE8E8E8}) << "the badge's cube";
  EXPECT_EQ(window->imgWebSafe.Graphics().Pixel(0, 0), window->BackColor.get());
}

TEST_F(CoreTest, CopyGivesTheSelectedColorAndPasteTakesOne) {
  choose("mnuEditCopyHex");
  EXPECT_EQ(Clipboard().Text(), "#70ABFF");
  Clipboard().SetText("#FF8000");
  choose("EditPaste");
  EXPECT_EQ(window->SelectedColor, Color{0xFF8000});
}

// When a thread gets a turn during the update, the swatches are up to date, and any number of the bars.
TEST_F(CoreTest, ANewColorLetsThreadsRunBetweenTheBars) {
  Thread watcher{*window, "watcher"};
  std::set<std::ptrdiff_t> done;
  Color now = window->SelectedColor;
  watcher.RunEvent = [&] {
    while (now != kBlack) {
      done.insert(std::ranges::count(window->cmdMixer, now, &zrColorCHBar::propBaseColor));
      EXPECT_EQ(window->SelectedColor, now);
      EXPECT_EQ(window->sm.Value, now) << "the last before the bars";
      RuntimeBackgroundTask();
    }
  };
  watcher.Run();
  fake().costOfLook = 5ms;
  for (int i = 0; i < 300; ++i) {
    now = i % 2 == 0 ? kWhite : Color{0x70ABFF};
    window->setColor(now, false);
    RuntimeBackgroundTask();  // keeps the calls out of step with the reads of the clock
  }
  now = kBlack;  // ends the thread
  fake().advance(1ms);
  EXPECT_EQ(done, std::set<std::ptrdiff_t>({1, 2, 3, 4, 5, 6}));
}

TEST_F(CoreTest, ABarChangesTheColorWhenTheHandLetsGoAndTheTipGoesASecondAfterTheLastChange) {
  const zrColorCHBar& green = window->cmdMixer[1];
  gesture::press(green, green.Lastx, 10);
  const std::tuple<Int32, std::chrono::milliseconds, const char*> rows[] = {
      {60, 600ms, "Green 127"}, {5, 999ms, "Green 0"}, {5, 1ms, "none"}, {115, 1ms, "Green 255"}};
  for (const auto& [x, wait, text] : rows) {
    gesture::dragTo(green, x, 10);
    fake().advance(wait);
    EXPECT_EQ(window->rTIP.Visible ? window->rLblTip.Text.get() : "none", text);
    EXPECT_EQ(window->SelectedColor, Color{0x70ABFF});
  }
  gesture::release(green, 115, 10);
  EXPECT_FALSE(window->rTIP.Visible);
  EXPECT_FALSE(fake().nextAlarm());
  EXPECT_EQ(window->SelectedColor, Color{0x70FFFF});
  gesture::key(green, Qt::Key_Left);
  EXPECT_EQ(window->SelectedColor, Color{0x70FEFF});
}

}  // namespace
}  // namespace tavrelkin
