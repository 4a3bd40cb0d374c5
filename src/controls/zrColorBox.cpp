#include "controls/zrColorBox.h"

#include <utility>

#include "color/zrColorLib.h"
#include "controls/Accessibles.h"
#include "controls/ColorDrag.h"
#include "runtime/core/system/System.h"

namespace tavrelkin {

zrColorBox::zrColorBox(Window& owner, String name) : Canvas(owner, std::move(name)) {
  describe(accessibleOf(*this));
}

void zrColorBox::Event_Open() {
  ColorDrag::accept(*this);
}

void zrColorBox::SetValue(Color c) {
  Value = c;
  DrawBox();
  HelpTag = "Color: " + getDottedStr(c) + ", #" + getHexStr(c);
  announce(AccessibleChange::description);
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
  IsDrag = false;
  return true;
}

void zrColorBox::Event_MouseDrag(Int32 x, Int32 y) {
  if (IsDrag || !Keyboard::AsyncOptionKey()) return;
  IsDrag = true;
  ColorDrag::begin(*this, Value, x, y);
}

void zrColorBox::Event_MouseUp(Int32 x, Int32 y) {
  if (std::exchange(IsDrag, false)) return;
  if (0 < x && x < Width && 0 < y && y < Height) Action();
}

bool zrColorBox::Event_KeyDown(const String& key) {
  if (!isPressKey(key)) return Canvas::Event_KeyDown(key);
  press();
  return true;
}

void zrColorBox::Event_DropObject(const Ref<DragItem>& item, Int32) {
  Color c;
  if (!ColorDrag::take(item, c) || !ColorDrop(c)) return;
  SetValue(c);
  ColorChanged();
}

}  // namespace tavrelkin
