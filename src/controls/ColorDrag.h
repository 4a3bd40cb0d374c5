#pragma once

#include "runtime/core/drawing/Color.h"
#include "runtime/core/exchange/DragItem.h"
#include "runtime/toolkit/RectControl.h"

// How colours travel by drag, for all controls alike: as private data of the type "hcol" and as text of the hash form.
namespace tavrelkin::ColorDrag {

// What a control has to do to be a target: private data goes ahead of text, or is all that it takes.
void accept(RectControl& control);
void acceptPrivate(RectControl& control);

// Takes the colour that an item carries. False where it carries none; `c` is written only on success.
bool take(const Ref<DragItem>& item, Color& c);
bool takePrivate(const Ref<DragItem>& item, Color& c);

// The side of the outline around the pointer, in pixels.
constexpr Int32 kLarge = 21;
constexpr Int32 kSmall = 9;

// Drags a colour out of a control, under an outline around the pointer, which stands at (x, y) of the control. Returns
// when the drag is over.
void begin(RectControl& control, Color c, Int32 x, Int32 y, Int32 outline = kLarge);

}  // namespace tavrelkin::ColorDrag
