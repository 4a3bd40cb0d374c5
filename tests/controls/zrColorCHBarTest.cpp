#include "controls/ControlsTest.h"

namespace tavrelkin {
namespace {

class zrColorCHBarTest : public ControlsTest {
 protected:
  zrColorCHBar& open(Int32 channel, Color c) {
    host = New<Host>(channel);
    host->Show();
    EXPECT_EQ(after([&] { host->bar.SetBaseColor(c); }), "");
    return host->bar;
  }
};

TEST_F(zrColorCHBarTest, ABaseColorGivesTheChannelsValueAndTip) {
  const std::tuple<Int32, std::uint32_t, Int32, const char*> rows[] = {
      {0, 0x80FF00, 128, "Red 128"},        {1, 0x128034, 128, "Green 128"},    {2, 0x123407, 7, "Blue 7"},
      {3, 0xFF8000, 21, "Hue 008"},         {3, 0x00FFFF, 127, "Hue 050"},      {3, 0xFF0001, 254, "Hue 100"},
      {4, 0xFF8000, 255, "Saturation 100"}, {4, 0x000000, 0, "Saturation 000"}, {4, 0x70ABFF, 143, "Saturation 056"},
      {5, 0x102030, 48, "Luminosity 019"},  {6, 0x40FFFF, 191, "Cyan 075"},     {7, 0xFF8000, 127, "Magenta 050"},
      {8, 0xFFFF00, 255, "Yellow 100"},
  };
  for (const auto& [channel, color, value, tip] : rows) {
    zrColorCHBar& bar = open(channel, Color{color});
    EXPECT_EQ(bar.Value, value) << tip;
    EXPECT_EQ(bar.HelpTag.get(), tip);
  }
}

// Rounding makes no value smaller.
TEST_F(zrColorCHBarTest, EveryByteOfAChannelIsRead) {
  for (const Int32 channel : {0, 1, 2, 5, 6, 7, 8}) {
    zrColorCHBar& bar = open(channel, kBlack);
    for (Int32 v = 0; v < 256; ++v) {
      bar.SetBaseColor(RGB(v, v, v));
      EXPECT_EQ(bar.Value, channel < 6 ? v : 255 - v) << channel;
    }
  }
}

TEST_F(zrColorCHBarTest, APressCountsOnTheIndicatorOnly) {
  String taken;
  for (const auto& [x, y] : {std::pair{63, 5}, {57, 5}, {60, 1}, {60, 19}, {64, 5}, {56, 5}, {60, 0}}) {
    const zrColorCHBar& bar = open(0, Color{0x804020});
    gesture::press(bar, x, y);
    gesture::dragTo(bar, 200, 5);
    gesture::release(bar, 200, 5);
    taken += host->log == "changing-804020 action-FF4020 " ? "+" : host->log + "-";
  }
  EXPECT_EQ(taken, "++++---");
}

TEST_F(zrColorCHBarTest, ADragChangesTheValueButTheColorOnlyAtItsEnd) {
  zrColorCHBar& bar = open(0, Color{0x804020});
  gesture::press(bar, 60, 5);
  gesture::dragTo(bar, 6, 5);
  EXPECT_EQ(bar.HelpTag.get(), "Red 2");
  gesture::dragTo(bar, 100, -3);
  EXPECT_EQ(bar.Value, 2) << "above the bar the value stands still";
  for (const auto& [x, value] : {std::pair{300, 255}, {-300, 0}}) {
    gesture::dragTo(bar, x, 5);
    EXPECT_EQ(bar.Value, value) << "beyond the end";
  }
  bar.WebSafe = true;
  gesture::dragTo(bar, 62, 5);
  gesture::release(bar, 62, 5);
  const String changing = "changing-804020 ";
  EXPECT_EQ(host->log, changing + changing + changing + changing + "action-664020 ") << "down to a multiple of 51";
}

TEST_F(zrColorCHBarTest, AnyKeyRaisesChangeAndOnlyArrowsStep) {
  const zrColorCHBar& bar = open(1, Color{0x00FF00});
  EXPECT_EQ(bar.Lastx, 115);
  constexpr int kRight = 0x01000014;
  constexpr int kLeft = 0x01000012;
  for (const int key : {kRight, kLeft, int{'A'}})
    gesture::key(bar, key);
  EXPECT_EQ(host->log, "change-00FF00 change-00FE00 change-00FE00 ");
  EXPECT_EQ(bar.Lastx, 117) << "closer to the end than by the host's hand";
}

TEST_F(zrColorCHBarTest, ADroppedColorGivesItsChannelOnly) {
  const std::tuple<Int32, const char*, Int32> rows[] = {
      {1, "action-118033 ", 59}, {3, "action-332211 ", 10}, {4, "action-001A33 ", 118}, {5, "action-55AAFF ", 118}};
  const Ref<DragItem> item = New<DragItem>();
  item->SetText(" #FF8000 ");
  for (const auto& [channel, log, position] : rows) {
    zrColorCHBar& bar = open(channel, Color{0x112233});
    bar.Event_DropObject(item, 0);
    EXPECT_EQ(host->log, log) << channel;
    EXPECT_EQ(bar.Lastx, position) << channel;
  }
}

TEST_F(zrColorCHBarTest, TheStripStepsByTwoAndIsNotScaled) {
  zrColorCHBar& bar = open(0, kBlack);
  bar.SetValue(128);
  // The frame, the strip's steps, and the indicator with its two frames. Row 2 of the indicator shows the strip.
  const std::tuple<Int32, Int32, Color> rows[] = {
      {0, 0, Color{0x949494}},  {5, 5, kBlack},  {6, 5, RGB(2, 0, 0)},    {118, 5, RGB(226, 0, 0)},
      {57, 0, Color{0x606060}}, {58, 1, kWhite}, {60, 5, RGB(128, 0, 0)}, {60, 2, RGB(110, 0, 0)}};
  for (const auto& [x, y, c] : rows)
    EXPECT_EQ(bar.Graphics().Pixel(x, y), c) << x << ", " << y;
}

}  // namespace
}  // namespace tavrelkin
