// The selected colour in the preview as people with a colour-vision deficiency see it.

#include <algorithm>

#include "color/zrXYZ.h"
#include "toolwindow/ToolWindowTest.h"

namespace tavrelkin {
namespace {

constexpr std::array kGammas{1.7, 1.8, 2.2};

class ColorBlindViewTest : public ToolWindowTest {
 protected:
  static Color seen(Color c, Int32 row, Int32 column) {
    zrXYZ model(c);
    model.gamma = kGammas.at(static_cast<std::size_t>(row));
    model.XYZFromRGB(c);
    return model.getDichromatTranformation(column, c);
  }

  Color wantedAt(Int32 x, Int32 y, Color c) const {
    for (Int32 row = 0; row < 3; ++row) {
      for (Int32 column = 0; column < 3; ++column) {
        const Int32 right = x - 100 - 48 * column, down = y - 12 - 44 * row;
        const Int32 depth = std::min({right, down, 39 - right, 39 - down});
        if (depth >= 0) return depth == 0 ? Color{0x909090} : depth == 1 ? kWhite : seen(c, row, column);
      }
    }
    return window->BackColor;
  }

  // The first pixel of the preview that doesn't show the swatches of a colour, or nothing.
  String firstFault(Color c) const {
    for (Int32 y = 0; y < 192; ++y) {
      for (Int32 x = 0; x < 408; ++x) {
        if (window->imgScreen.Graphics().Pixel(x, y) != wantedAt(x, y, c)) return Str(x) + ", " + Str(y);
      }
    }
    return "";
  }
};

TEST_F(ColorBlindViewTest, ShowsNineSwatchesOfTheColourOfTheLastPaint) {
  Color shown = window->SelectedColor;
  choose("mnuColorBlind");
  for (const std::uint32_t bits : {0xFF0000u, 0x000000u, 0xFFFFFFu, 0x336699u}) {
    window->setColor(Color{bits}, false);
    EXPECT_EQ(firstFault(shown), "") << "a new colour waits for the next paint";
    shown = Color{bits};
    window->imgScreen.Refresh(true);
    EXPECT_EQ(firstFault(shown), "") << Hex(toInt32(bits));
  }
  window->drawColorBlind(nullptr);
}

}  // namespace
}  // namespace tavrelkin
