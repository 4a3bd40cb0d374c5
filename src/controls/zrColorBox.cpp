#include "controls/zrColorBox.h"

#include <utility>

#include "color/zrColorLib.h"

namespace tavrelkin {

zrColorBox::zrColorBox(Window& owner, String name) : Canvas(owner, std::move(name)) {}

void zrColorBox::SetValue(Color c) {
  Value = c;
  DrawBox();
  HelpTag = "Color: " + Str(c.red()) + "." + Str(c.green()) + "." + Str(c.blue()) + ", #" + getHexStr(c);
}

void zrColorBox::DrawBox() {
  auto& g = Graphics();
  g.ForeColor = RGB(144, 144, 144);
  g.DrawRect(0, 0, g.Width(), g.Height());
  g.ForeColor = kWhite;
  g.DrawRect(1, 1, g.Width() - 2, g.Height() - 2);
  g.ForeColor = Value;
  g.FillRect(2, 2, g.Width() - 4, g.Height() - 4);
}

void zrColorBox::Event_Paint(tavrelkin::Graphics&) {
  DrawBox();
}

bool zrColorBox::Event_MouseDown(Int32, Int32) {
  return true;
}

void zrColorBox::Event_MouseUp(Int32 x, Int32 y) {
  if (0 < x && x < Width && 0 < y && y < Height) Action();
}

}  // namespace tavrelkin
