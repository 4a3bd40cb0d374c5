#pragma once

#include "runtime/core/exchange/DragItem.h"
#include "runtime/toolkit/RectControl.h"

// The gestures with which a user moves data between controls, as real events of the toolkit.
namespace tavrelkin::gesture {

// Drops an item from elsewhere in the middle of a control. False if the control doesn't accept this kind of item.
bool drop(const RectControl& control, const DragItem& item);

// Presses at one position of a control and drags to another. Returns the item that is dragged then. Null if no drag
// starts; the button is still held then.
Ref<DragItem> pull(const RectControl& from, Int32 x, Int32 y, Int32 toX, Int32 toY);

}  // namespace tavrelkin::gesture
