#pragma once

#include "runtime/base/Number.h"
#include "runtime/drawing/Color.h"

// The screen and the pointer, in the screen's own pixels over all monitors: coordinates may be negative.
namespace tavrelkin::System {

// Where the pointer is, also when the program is not in front.
Int32 MouseX();
Int32 MouseY();

// The colour on screen at a place, whichever window shows there, the program's own included. Black off the screen.
// Where the desktop lets no program read the screen, the user is told so once, and the result is a pattern of greys
// that can't be taken for the screen.
Color Pixel(Int32 x, Int32 y);

}  // namespace tavrelkin::System
