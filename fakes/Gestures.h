#pragma once

#include "runtime/toolkit/RectControl.h"

// A user's gestures on a control, as real events of the toolkit. Coordinates start at the control's top left corner,
// and may be outside the control while the button is held.
namespace tavrelkin::gesture {

void press(const RectControl& control, Int32 x, Int32 y);
void dragTo(const RectControl& control, Int32 x, Int32 y);
void release(const RectControl& control, Int32 x, Int32 y);
void click(const RectControl& control, Int32 x, Int32 y);
// Moves the pointer with no button held.
void hover(const RectControl& control, Int32 x, Int32 y);

// Sends a key to the control. `qtKey` is the toolkit's key code; the code of a letter is the upper-case letter.
void key(const RectControl& control, int qtKey);
// Sends the keys of a text to the control, one by one. The text must be ASCII.
void type(const RectControl& control, const String& text);

// Whether the control receives the keys while its window is in front.
bool hasKeyboard(const RectControl& control);

// Presses a shortcut such as "Cmd+Option+C" while the window is in front.
void shortcut(const Window& window, const String& keys);
// The same while the control has the focus.
void shortcut(const RectControl& control, const String& keys);
// Holds the keys of a shortcut down while the window is in front, until the keyboard has repeated them `repeats` times.
void holdShortcut(const Window& window, const String& keys, int repeats);

// A click at a position in the window's content, a key, and a turn of the wheel. Each is sent as the display server
// does: to the window at that position, or to the window with the focus.
void clickIn(const Window& window, Int32 x, Int32 y);
void keyIn(const Window& window, int qtKey);
void scrollIn(const Window& window);

// Brings the window to the front through the desktop, as a task bar does.
void activate(const Window& window);
// Processes all events that are waiting. Returns whether the window then has the focus and is not minimised.
bool isInFront(const Window& window);

// Closes, or minimises, the window with its frame.
void closeByFrame(const Window& window);
void minimise(const Window& window);

}  // namespace tavrelkin::gesture
