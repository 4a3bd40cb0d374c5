#include "controls/ColourDrag.h"

#include "color/zrColorLib.h"

namespace tavrelkin::ColourDrag {

namespace {

constexpr auto kType = "hcol";
constexpr Int32 kOutline = 21;
constexpr Int32 kReach = 10;

}  // namespace

void accept(RectControl& control) {
  control.AcceptMacDataDrop(kType);
  control.AcceptTextDrop();
}

bool take(const Ref<DragItem>& item, Color& c) {
  if (item->MacDataAvailable(kType)) {
    c = getColorFromDrop(item);
    return true;
  }
  return item->TextAvailable() && getColorFromTextDrop(item, c);
}

void begin(RectControl& control, Color c, Int32 x, Int32 y) {
  const Ref<DragItem> item =
      control.NewDragItem(control.Left + (x - kReach), control.Top + (y - kReach), kOutline, kOutline);
  item->MacData(kType, getRGBStr(c));
  item->SetText("#" + getHexStr(c));
  item->Drag();
}

}  // namespace tavrelkin::ColourDrag
