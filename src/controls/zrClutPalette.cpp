#include "controls/zrClutPalette.h"

#include <algorithm>
#include <utility>

#include "controls/Accessibles.h"
#include "controls/ColorDrag.h"

namespace tavrelkin {

namespace {

constexpr Color kMark{0x909090};
constexpr Double kDragStart = 6.0;

}  // namespace

zrClutPalette::zrClutPalette(Window& owner, String name) : Canvas(owner, std::move(name)) {
  describe(accessibleOf(*this));
}

void zrClutPalette::Event_Open() {
  wBox = 12;
  LastSelection = 0;
  Selected = 0;
  ColorDrag::acceptPrivate(*this);
  Open();
}

void zrClutPalette::SetClut(const Ref<zrClut>& clut) {
  TheClut = clut;
  Refresh(true);
  announce(AccessibleChange::cells);
}

Int32 zrClutPalette::columns() const {
  return std::max(Width / pitch(), 1);
}

zrClutPalette::Place zrClutPalette::origin(Int32 index) const {
  return {index % columns() * pitch(), index / columns() * pitch()};
}

Int32 zrClutPalette::indexAt(Int32 x, Int32 y) const {
  return y / pitch() * columns() + x / pitch();
}

void zrClutPalette::Event_Paint(tavrelkin::Graphics& g) {
  if (!TheClut) return;
  g.ForeColor = kWhite;
  g.FillRect(0, 0, g.Width(), g.Height());
  g.TextSize = 8;
  for (Int32 i = 0; i < TheClut->Count; ++i) {
    const auto [x, y] = origin(i);
    g.ForeColor = TheClut->getColor(i);
    g.FillRect(x + 1, y + 1, wBox, wBox);
    g.ForeColor = kBlack;
    g.DrawRect(x, y, wBox + 2, wBox + 2);
  }
  g.ForeColor = kBlack;
}

void zrClutPalette::DrawBorder(bool highlighted, Int32 index) {
  if (index < 0) return;
  auto& g = Graphics();
  const auto [x, y] = origin(index);
  g.ForeColor = TheClut->getColor(index);
  g.FillRect(x + 1, y + 1, wBox, wBox);
  if (highlighted) {
    g.ForeColor = kWhite;
    g.DrawRect(x + 1, y + 1, wBox, wBox);
    g.ForeColor = kMark;
  } else {
    g.ForeColor = kBlack;
  }
  g.DrawRect(x, y, wBox + 2, wBox + 2);
}

bool zrClutPalette::Event_MouseDown(Int32 x, Int32 y) {
  int_LastX = x;
  int_LastY = y;
  int_IsDrag = false;
  return true;
}

void zrClutPalette::Event_MouseUp(Int32 x, Int32 y) {
  int_LastX = x;
  int_LastY = y;
  choose(indexAt(x, y));
}

void zrClutPalette::choose(Int32 index) {
  LastSelection = Selected;
  DrawBorder(false, Selected);
  if (index < 0 || index >= TheClut->Count) {
    Selected = -1;
    announce(AccessibleChange::currentCell);
    return;
  }
  Selected = index;
  DrawBorder(true, index);
  announce(AccessibleChange::currentCell);
  Action(index, TheClut->getColor(index));
}

bool zrClutPalette::Event_KeyDown(const String& key) {
  const Int32 index = TheClut && TheClut->Count > 0 ? cellTowards(key) : -1;
  if (index < 0) return Canvas::Event_KeyDown(key);
  choose(index);
  return true;
}

Int32 zrClutPalette::cellTowards(const String& key) const {
  Int32 step = 0;
  if (key == kLeftArrow) {
    step = -1;
  } else if (key == kRightArrow) {
    step = 1;
  } else if (key == kUpArrow) {
    step = -columns();
  } else if (key == kDownArrow) {
    step = columns();
  } else if (!isPressKey(key)) {
    return -1;
  }
  if (Selected < 0 || Selected >= TheClut->Count) return 0;
  const Int32 index = Selected + step;
  return index >= 0 && index < TheClut->Count ? index : Selected;
}

// A press doesn't move the selection: the drag carries the colour that was selected before it.
void zrClutPalette::Event_MouseDrag(Int32 x, Int32 y) {
  if (Selected < 0 || Selected > TheClut->Count) {
    int_LastX = x;
    int_LastY = y;
    return;
  }
  if (int_IsDrag || (Abs(x - int_LastX) <= kDragStart && Abs(y - int_LastY) <= kDragStart)) return;
  int_IsDrag = true;
  ColorDrag::begin(*this, TheClut->getColor(Selected), x, y, ColorDrag::kSmall);
}

// Stores the colour in the selected cell, wherever the user drops it.
void zrClutPalette::Event_DropObject(const Ref<DragItem>& item, Int32) {
  Color c;
  if (!TheClut || !ColorDrag::takePrivate(item, c) || Selected < 0) return;
  TheClut->SetColor(c, Selected);
  DrawBorder(true, Selected);
  announce(AccessibleChange::cells);
  Change(Selected, c);
}

}  // namespace tavrelkin
