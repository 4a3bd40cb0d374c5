// How the button behaves; its looks are in zrColorButton_painting.cpp.

#include "controls/zrColorButton.h"

#include <utility>

#include "controls/Accessibles.h"
#include "controls/ColorDrag.h"
#include "runtime/core/system/Dialogs.h"
#include "runtime/core/system/System.h"

namespace tavrelkin {

zrColorButton::zrColorButton(Window& owner, String name) : Canvas(owner, std::move(name)) {
  describe(accessibleOf(*this));
}

void zrColorButton::Event_Open() {
  propFrameColor = Color{0x909090};
  propColorBoxWidth = 15;
  propColorFormat = 3;
  propColorSelectionPrompt = "Select Color";
  ColorDrag::accept(*this);
  Open();
}

void zrColorButton::SetValue(Color c) {
  Value = c;
  drawColor(Graphics());
  announce(AccessibleChange::description);
}

void zrColorButton::setColorFormat(Int32 format) {
  propColorFormat = format;
  drawValue();
}

void zrColorButton::Event_MouseEnter() {
  if (!Enabled) return;
  State = 1;
  drawBevel(Graphics());
}

void zrColorButton::Event_MouseExit() {
  const Int32 before = std::exchange(State, 0);
  if (before == 0) return;
  drawBevel(Graphics());
  if (before == 2 || before == 3) Action();
}

bool zrColorButton::Event_MouseDown(Int32, Int32) {
  IsDrag = false;
  return true;
}

void zrColorButton::Event_MouseDrag(Int32 x, Int32 y) {
  if (IsDrag || !Keyboard::AsyncOptionKey()) return;
  IsDrag = true;
  ColorDrag::begin(*this, Value, x, y);
}

// Only the swatch and its frame count.
void zrColorButton::Event_MouseUp(Int32 x, Int32 y) {
  if (std::exchange(IsDrag, false)) return;
  if (x < 2 || x > toInt32(swatchWidth(Width) + 2.0) || y < 2 || y > Height - 4) return;
  press();
}

bool zrColorButton::Event_KeyDown(const String& key) {
  if (!isPressKey(key)) return Canvas::Event_KeyDown(key);
  press();
  return true;
}

void zrColorButton::press() {
  if (BeforeSelectColor()) {
    Action();
  } else {
    intSelectColor();
  }
}

void zrColorButton::intSelectColor() {
  Color c = Value;
  if (SelectColor(c, propColorSelectionPrompt)) SetValue(c);
  Action();
}

void zrColorButton::Event_DropObject(const Ref<DragItem>& item, Int32) {
  Color c;
  if (!ColorDrag::take(item, c)) return;
  SetValue(c);
  Change();
}

}  // namespace tavrelkin
