#pragma once

#include <functional>

#include "runtime/core/base/Number.h"
#include "runtime/core/drawing/Color.h"

// The screen and the pointer. Coordinates are in device pixels over all monitors, and may be negative.
namespace tavrelkin::System {

// The position of the pointer, also while another program is in front.
Int32 MouseX();
Int32 MouseY();

// The colour of the screen at (x, y). The window that is visible there may belong to any program, including this
// program. Black outside the screen. If the screen can't be read, the result is a pattern of greys that can't be
// mistaken for the screen.
Color Pixel(Int32 x, Int32 y);

// Whether Pixel can be used. Also true on a desktop where no program can read the screen and the user can't pick single
// colours either: Pixel then returns the greys, and the user sees a message once.
bool CanReadScreen();

// Asks for permission to read the screen if the desktop requires it, and returns CanReadScreen(). If the result is
// false, the desktop is asking the user, and the user has to repeat the click or key press after answering. If the
// desktop only lets the user pick single colours, the user picks a colour now, and the event loop calls `picked` with
// it later.
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
