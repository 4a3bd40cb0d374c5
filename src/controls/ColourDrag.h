#pragma once

#include "runtime/drawing/Color.h"
#include "runtime/gui/DragItem.h"
#include "runtime/gui/RectControl.h"

// How colours travel by drag, for all controls alike: as private data of the type "hcol" and as text of the hash form.
namespace tavrelkin::ColourDrag {

// What a control has to do to be a target: private data goes ahead of text.
void accept(RectControl& control);

// Takes the colour that an item carries. False where it carries none; `c` is written only on success.
bool take(const Ref<DragItem>& item, Color& c);

// Drags a colour out of a control, under an outline of 21 pixels around the pointer, which stands at (x, y) of the
// control. Returns when the drag is over.
void begin(RectControl& control, Color c, Int32 x, Int32 y);

}  // namespace tavrelkin::ColourDrag
