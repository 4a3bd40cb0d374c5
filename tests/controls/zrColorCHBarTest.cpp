#include "controls/BarTest.h"

namespace tavrelkin {
namespace {

using zrColorCHBarTest = BarTest;

TEST_F(zrColorCHBarTest, ABaseColourGivesTheChannelsValueAndTip) {
  const struct {
    Int32 channel;
    std::uint32_t color;
    Int32 value;
    const char* tip;
  } rows[] = {
      {0, 0x80FF00, 128, "Red 128"},        {1, 0x128034, 128, "Green 128"},      {2, 0x123407, 7, "Blue 7"},
      {3, 0xFF8000, 21, "Hue 008"},         {3, 0x00FFFF, 127, "Hue 050"},        {3, 0xFF0001, 254, "Hue 100"},
      {3, 0x808080, 0, "Hue 000"},          {4, 0xFF8000, 255, "Saturation 100"}, {4, 0x000000, 0, "Saturation 000"},
      {4, 0x70ABFF, 143, "Saturation 056"}, {5, 0x102030, 48, "Luminosity 019"},  {6, 0x40FFFF, 191, "Cyan 075"},
      {7, 0xFF8000, 127, "Magenta 050"},    {8, 0xFFFF00, 255, "Yellow 100"},
  };
  for (const auto& [channel, color, value, tip] : rows) {
    const Ref<Host> host = open(channel, Color{color});
    EXPECT_EQ(host->bar.propColorChannel, channel);
    EXPECT_EQ(host->bar.propBaseColor, Color{color});
    EXPECT_EQ(host->bar.Value, value) << tip;
    EXPECT_EQ(host->bar.HelpTag.get(), tip);
    host->bar.SetValue(255);
    EXPECT_EQ(host->bar.propBaseColor, Color{color});
    EXPECT_EQ(host->log, "");
    host->Close();
  }
}

// A red of every value comes back as it went in: nothing falls short by a rounding.
TEST_F(zrColorCHBarTest, EveryByteOfAChannelIsRead) {
  for (const Int32 channel : {0, 1, 2, 5, 6, 7, 8}) {
    const Ref<Host> host = New<Host>(channel);
    for (Int32 v = 0; v < 256; ++v) {
      host->bar.SetBaseColor(RGB(v, v, v));
      EXPECT_EQ(host->bar.Value, channel < 6 ? v : 255 - v) << channel;
    }
  }
}

}  // namespace
}  // namespace tavrelkin
