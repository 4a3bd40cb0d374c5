#pragma once

#include <functional>

#include "runtime/core/base/Number.h"
#include "runtime/core/drawing/Color.h"

// The screen and the pointer, in the screen's own pixels over all monitors: coordinates may be negative.
namespace tavrelkin::System {

// Where the pointer is, also when the program is not in front.
Int32 MouseX();
Int32 MouseY();

// The colour on screen at a place, whichever window shows there, the program's own included. Black off the screen.
// Where the screen can't be read, the result is a pattern of greys that can't be taken for the screen.
Color Pixel(Int32 x, Int32 y);

// Whether Pixel gives what is on screen. Also true on a desktop that gives the screen to no program: the user is told
// so once, and Pixel gives the greys.
bool CanReadScreen();

// Asks for the screen where the desktop lets a program read it with the user's permission only. True where it can be
// read already; else the desktop asks the user, who has to repeat the gesture then. On a desktop that gives no more
// than single colours the user picks one, which `picked` gets later, from the event loop.
bool RequestScreen(std::function<void(Color)> picked = {});

// For a thread: waits until the user has answered and the desktop shows the screen. Gives whether it can be read. On
// the main thread it does not wait.
bool AwaitScreen();

}  // namespace tavrelkin::System

namespace tavrelkin::Keyboard {

// Whether the Option key is held down now. Alt is one, and so is AltGr, the level-3 shift: many window managers keep
// Alt with a drag for themselves.
bool AsyncOptionKey();

}  // namespace tavrelkin::Keyboard
