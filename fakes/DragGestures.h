#pragma once

#include "runtime/core/exchange/DragItem.h"
#include "runtime/toolkit/RectControl.h"

// What a user does to move data between controls, as real events of the toolkit.
namespace tavrelkin::gesture {

// Drops an item that comes from elsewhere in the middle of a control. False where the control doesn't take its kind.
bool drop(const RectControl& control, const DragItem& item);

// Presses at one place of a control and pulls to another. Gives what is dragged away then; nil where nothing is, and in
// that case the button is still held.
Ref<DragItem> pull(const RectControl& from, Int32 x, Int32 y, Int32 toX, Int32 toY);

}  // namespace tavrelkin::gesture
