#pragma once

#include <functional>

#include "runtime/core/base/Number.h"
#include "runtime/core/drawing/Color.h"

// The screen and the pointer. Coordinates are in device pixels over all monitors, and may be negative.
namespace tavrelkin::System {

// The position of the pointer, also while another program is in front.
Int32 MouseX();
Int32 MouseY();

// The colour on screen at (x, y), of whichever window is visible there, also the program's own. Black off the screen.
// If the screen can't be read, a pattern of greys that can't be mistaken for the screen.
Color Pixel(Int32 x, Int32 y);

// Whether Pixel can be used. Also true on a desktop that no program can read, where Pixel gives the greys; the user is
// told once.
bool CanReadScreen();

// Asks for permission to read the screen if the desktop requires it, and returns CanReadScreen(). If that is false, the
// desktop asks the user, who has to repeat the gesture afterwards. A desktop that only gives single colours lets the
// user pick a colour now, and the event loop calls `picked` with it later.
bool RequestScreen(std::function<void(Color)> picked = {});

// Suspends a thread until the user has answered and the desktop delivers the screen. Returns whether the screen can be
// read. On the main thread it returns at once.
bool AwaitScreen();

}  // namespace tavrelkin::System

namespace tavrelkin::Keyboard {

// Whether the Option key is held down now. Both Alt and AltGr (the level-3 shift) count as Option, since many window
// managers use a drag with Alt for themselves.
bool AsyncOptionKey();

}  // namespace tavrelkin::Keyboard
