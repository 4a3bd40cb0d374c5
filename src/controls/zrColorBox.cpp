#include "controls/zrColorBox.h"

#include <utility>

#include "color/zrColorLib.h"
#include "controls/ColorDrag.h"

namespace tavrelkin {

zrColorBox::zrColorBox(Window& owner, String name) : ColorSwatch(owner, std::move(name)) {}

void zrColorBox::Event_Open() {
  ColorDrag::accept(*this);
}

void zrColorBox::SetValue(Color c) {
  Value = c;
  DrawBox();
  HelpTag = "Color: " + getDottedAndHexStr(c);
  announce(AccessibleChange::description);
}

void zrColorBox::DrawBox() {
  auto& g = Graphics();
  drawSwatch(g, 0, 0, g.Width(), g.Height(), Value);
}

void zrColorBox::Event_Paint(tavrelkin::Graphics&) {
  DrawBox();
}

void zrColorBox::Event_MouseUp(Int32 x, Int32 y) {
  if (std::exchange(IsDrag, false)) return;
  if (0 < x && x < Width && 0 < y && y < Height) Action();
}

void zrColorBox::Event_DropObject(const Ref<DragItem>& item, Int32) {
  Color c;
  if (!ColorDrag::take(item, c) || !ColorDrop(c)) return;
  SetValue(c);
  ColorChanged();
}

}  // namespace tavrelkin
