#include "controls/ColorSwatch.h"

#include <utility>

#include "controls/Accessibles.h"
#include "controls/ColorDrag.h"
#include "runtime/core/system/System.h"

namespace tavrelkin {

ColorSwatch::ColorSwatch(Window& owner, String name) : Canvas(owner, std::move(name)) {
  describe(accessibleOf(*this));
}

bool ColorSwatch::Event_MouseDown(Int32, Int32) {
  IsDrag = false;
  return true;
}

void ColorSwatch::Event_MouseDrag(Int32 x, Int32 y) {
  if (IsDrag || !Keyboard::AsyncOptionKey()) return;
  IsDrag = true;
  ColorDrag::begin(*this, Value, x, y);
}

bool ColorSwatch::Event_KeyDown(const String& key) {
  if (!isPressKey(key)) return Canvas::Event_KeyDown(key);
  press();
  return true;
}

void drawSwatch(Graphics& g, Int32 x, Int32 y, Int32 width, Int32 height, Color c) {
  g.ForeColor = RGB(144, 144, 144);
  g.DrawRect(x, y, width, height);
  g.ForeColor = kWhite;
  g.DrawRect(x + 1, y + 1, width - 2, height - 2);
  g.ForeColor = c;
  g.FillRect(x + 2, y + 2, width - 4, height - 4);
}

}  // namespace tavrelkin
