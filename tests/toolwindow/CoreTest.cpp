// The tool window itself: its selected colour and the controls that show and change it.

#include <algorithm>
#include <set>

#include "toolwindow/ToolWindowTest.h"

namespace tavrelkin {
namespace {

class CoreTest : public ToolWindowTest {
 protected:
  // Every place where the selected colour shows.
  void expectShown(Color c, const String& title, const String& standard) const {
    EXPECT_EQ(window->SelectedColor, c);
    EXPECT_EQ(window->Title.get(), title);
    EXPECT_EQ(window->view0_lblColor.Text.get(), standard);
    EXPECT_EQ(window->cmdColor.Value, c);
    EXPECT_EQ(window->sm.Value, c);
    for (const zrColorCHBar& bar : window->cmdMixer)
      EXPECT_EQ(bar.propBaseColor, c) << bar.Index;
  }
};

TEST_F(CoreTest, OpensIdleAtTheStartColour) {
  expectShown(Color{0x70ABFF}, "Color: 112.171.255, #70ABFF", "Color: 112.171.255, 215.56.100, #70ABFF");
  EXPECT_TRUE(fake().pixelsRead.empty());
  EXPECT_FALSE(fake().nextAlarm());
  EXPECT_EQ(firstFault([](Int32, Int32) { return kWhite; }), "");
}

TEST_F(CoreTest, TheTabulatorVisitsWhatTakesKeysAndIsInSight) {
  auto& bar = window->cmdMixer;
  const auto visits = [this](const std::vector<const RectControl*>& order) {
    window->cmdColor.SetFocus();
    ASSERT_TRUE(waitUntil([&] { return gesture::hasKeyboard(window->cmdColor); }));
    for (const RectControl* next : order) {
      EXPECT_TRUE(gesture::hasKeyboard(*next)) << next->Name() << " " << next->Index;
      gesture::key(*next, 0x01000001);
    }
    EXPECT_TRUE(gesture::hasKeyboard(window->cmdColor)) << "from the last to the first";
  };
  window->Height = 400;
  visits({&window->cmdColor, &window->imgScreen, &window->DisclosureTriangle1, &window->slZoom, &bar[4], &bar[5],
          &bar[2], &bar[1], &bar[0], &bar[3], &window->cmdMakeWebSafe});
  window->Height = 262;
  visits({&window->cmdColor, &window->imgScreen, &window->DisclosureTriangle1, &window->cmdMakeWebSafe});
}

TEST_F(CoreTest, TheWebSafePairShowsForAnyOtherColour) {
  const std::tuple<std::uint32_t, bool, std::uint32_t> rows[] = {
      {0x70ABFF, false, 0x6699FF}, {0xFF9900, true, 0x6699FF}, {0xFF00FE, false, 0xFF00FF}};
  for (const auto& [color, safe, box] : rows) {
    window->setColor(Color{color}, false);
    EXPECT_EQ(window->imgWebSafe.Visible, !safe) << color;
    EXPECT_EQ(window->cmdMakeWebSafe.Visible, !safe) << color;
    EXPECT_EQ(window->cmdMakeWebSafe.Value, Color{box}) << color;
  }
  EXPECT_EQ(window->imgWebSafe.Graphics().Pixel(4, 3), Color{0xE8E8E8}) << "the badge's cube";
  EXPECT_EQ(window->imgWebSafe.Graphics().Pixel(0, 0), window->BackColor.get());
  gesture::click(window->cmdMakeWebSafe, 6, 6);
  expectShown(Color{0xFF00FF}, "Color: 255.0.255, #FF00FF", "Color: 255.0.255, 300.100.100, #FF00FF");
}

// A thread that gets a turn meanwhile finds the swatches done, and any number of the bars.
TEST_F(CoreTest, ANewColourLetsThreadsRunBetweenTheBars) {
  class Watched : public frmVesk {
   public:
    Thread watcher{*this, "watcher"};
  };
  const Ref<Watched> watched = New<Watched>();
  std::set<std::ptrdiff_t> done;
  bool running = true;
  Color now = watched->SelectedColor;
  watched->watcher.RunEvent = [&] {
    while (running) {
      done.insert(std::ranges::count(watched->cmdMixer, now, &zrColorCHBar::propBaseColor));
      EXPECT_EQ(watched->SelectedColor, now);
      EXPECT_EQ(watched->sm.Value, now);
      EXPECT_EQ(watched->cmdColor.Value, now);
      EXPECT_EQ(watched->imgWebSafe.Visible, now != kWhite);
      RuntimeBackgroundTask();
    }
  };
  watched->watcher.Run();
  fake().costOfLook = 5ms;
  for (int i = 0; i < 300; ++i) {
    now = i % 2 == 0 ? kWhite : Color{0x70ABFF};
    watched->setColor(now, false);
    RuntimeBackgroundTask();  // the calls don't fall into step with the looks at the clock
  }
  running = false;
  fake().advance(1ms);
  EXPECT_EQ(done, std::set<std::ptrdiff_t>({1, 2, 3, 4, 5, 6}));
}

TEST_F(CoreTest, ABarChangesTheColourWhenTheHandLetsGoAndTheTipGoesASecondAfterTheLastChange) {
  const zrColorCHBar& green = window->cmdMixer[1];
  const auto tip = [&] { return window->rTIP.Visible ? window->rLblTip.Text.get() : "none"; };
  EXPECT_EQ(tip(), "none");
  gesture::press(green, green.Lastx, 10);
  for (const auto& [x, text] : {std::pair{60, "Green 127"}, {5, "Green 0"}}) {
    fake().advance(600ms);
    gesture::dragTo(green, x, 10);
    EXPECT_EQ(tip(), text);
  }
  EXPECT_EQ(window->SelectedColor, Color{0x70ABFF});
  fake().advance(999ms);
  EXPECT_EQ(tip(), "Green 0");
  fake().advance(1ms);
  EXPECT_EQ(tip(), "none");
  gesture::dragTo(green, 115, 10);
  gesture::release(green, 115, 10);
  EXPECT_EQ(tip(), "none");
  EXPECT_FALSE(fake().nextAlarm());
  expectShown(Color{0x70FFFF}, "Color: 112.255.255, #70FFFF", "Color: 112.255.255, 180.56.100, #70FFFF");
  gesture::key(green, 0x01000012);
  EXPECT_EQ(window->SelectedColor, Color{0x70FEFF});
}

}  // namespace
}  // namespace tavrelkin
