#pragma once

#include "runtime/core/drawing/Color.h"
#include "runtime/core/exchange/DragItem.h"
#include "runtime/toolkit/RectControl.h"

// Colours in drags, for all controls, and in the clipboard, for all windows. A dragged colour has two forms: private
// data of the type "hcol" (getRGBStr), and text such as "#FF8000". On X11 the toolkit exchanges drags with other
// programs by the XDND protocol, version 5 (freedesktop.org).
namespace tavrelkin::ColorDrag {

// Makes a control a target of colours. accept() takes private data and text, and prefers private data;
// acceptPrivate() takes private data only.
void accept(RectControl& control);
void acceptPrivate(RectControl& control);

// Reads the colour of an item into `c`. If the item has none, returns false and leaves `c` unchanged.
bool take(const Ref<DragItem>& item, Color& c);
bool takePrivate(const Ref<DragItem>& item, Color& c);

// The side of the outline around the pointer, in pixels.
constexpr Int32 kLarge = 21;
constexpr Int32 kSmall = 9;

// Reads the text of the clipboard as a colour into `c`. If it is no colour, returns false and leaves `c` unchanged.
bool paste(Color& c);

// Starts a drag of a colour out of a control, and returns when the drag is over. The pointer is at (x, y), in pixels
// from the control's top left corner; a square outline with that side length follows it.
void begin(RectControl& control, Color c, Int32 x, Int32 y, Int32 outline = kLarge);

}  // namespace tavrelkin::ColorDrag
