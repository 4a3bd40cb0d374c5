#include "controls/zrColorButton.h"

#include <utility>

namespace tavrelkin {

zrColorButton::zrColorButton(Window& owner, String name) : Canvas(owner, std::move(name)) {}

void zrColorButton::SetValue(Color c) {
  Value = c;
  drawColor(Graphics());
}

void zrColorButton::Event_Paint(tavrelkin::Graphics& g) {
  drawColor(g);
}

void zrColorButton::drawColor(tavrelkin::Graphics& g) const {
  g.ForeColor = Value;
  g.FillRect(0, 0, g.Width(), g.Height());
  g.ForeColor = propFrameColor;
  g.DrawRect(0, 0, g.Width(), g.Height());
}

}  // namespace tavrelkin
