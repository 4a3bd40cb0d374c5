#include "controls/ColorDrag.h"

#include "color/zrColorLib.h"
#include "runtime/toolkit/Clipboard.h"

namespace tavrelkin::ColorDrag {

void accept(RectControl& control) {
  acceptPrivate(control);
  control.AcceptTextDrop();
}

void acceptPrivate(RectControl& control) {
  control.AcceptMacDataDrop(kColorData);
}

bool take(const Ref<DragItem>& item, Color& c) {
  return takePrivate(item, c) || (item->TextAvailable() && getColorFromTextDrop(item, c));
}

bool takePrivate(const Ref<DragItem>& item, Color& c) {
  if (!item->MacDataAvailable(kColorData)) return false;
  c = getColorFromDrop(item);
  return true;
}

bool paste(Color& c) {
  return getColorFromString(Trim(Clipboard().Text()), c);
}

void begin(RectControl& control, Color c, Int32 x, Int32 y, Int32 outline) {
  const Int32 reach = outline / 2;
  const Ref<DragItem> item =
      control.NewDragItem(control.Left + (x - reach), control.Top + (y - reach), outline, outline);
  item->MacData(kColorData, getRGBStr(c));
  item->SetText("#" + getHexStr(c));
  item->Drag();
}

}  // namespace tavrelkin::ColorDrag
