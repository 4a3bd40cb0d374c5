#pragma once

#include "runtime/gui/DragItem.h"
#include "runtime/gui/RectControl.h"

// What a user does to move data between controls, as real events of the toolkit.
namespace tavrelkin::gesture {

// Drops an item that comes from elsewhere in the middle of a control. False where the control doesn't take its kind.
bool drop(const RectControl& control, const DragItem& item);

// Presses at one place of a control and pulls to another. Gives what is dragged away then; nil where nothing is, and in
// that case the button is still held.
Ref<DragItem> pull(const RectControl& from, Int32 x, Int32 y, Int32 toX, Int32 toY);

// Pulls from the middle of one control to the middle of another and lets go there. False where that is no drag, or one
// that the other control doesn't take.
bool carry(const RectControl& from, const RectControl& to);

}  // namespace tavrelkin::gesture
