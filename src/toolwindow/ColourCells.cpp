#include "toolwindow/ColourCells.h"

namespace tavrelkin {

namespace {

constexpr Color kGround{0xA0A0A0};
constexpr Color kSwatchFrame{0x909090};
constexpr Int32 kLeft = 13;
constexpr Int32 kTop = 10;
constexpr Int32 kCell = 20;
constexpr Int32 kRightMargin = 10;
constexpr Int32 kStepAcross = 24;
constexpr Int32 kStepDown = 25;

}  // namespace

void drawSwatch(Graphics& g, Int32 x, Int32 y, Int32 side, Color c) {
  g.ForeColor = kSwatchFrame;
  g.DrawRect(x, y, side, side);
  g.ForeColor = kWhite;
  g.DrawRect(x + 1, y + 1, side - 2, side - 2);
  g.ForeColor = c;
  g.FillRect(x + 2, y + 2, side - 4, side - 4);
}

void drawCells(Graphics& g, const std::vector<Color>& colours) {
  g.ForeColor = kGround;
  g.FillRect(0, 0, g.Width(), g.Height());
  Int32 x = kLeft;
  Int32 y = kTop;
  for (const Color c : colours) {
    if (g.Width() - kRightMargin < x + kCell) {
      x = kLeft;
      y += kStepDown;
    }
    drawSwatch(g, x, y, kCell, c);
    x += kStepAcross;
  }
  g.ForeColor = kWhite;
  g.DrawRect(0, 0, g.Width(), g.Height());
}

}  // namespace tavrelkin
