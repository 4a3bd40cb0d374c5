#pragma once

#include "runtime/toolkit/RectControl.h"

// What a user does to a control, as real events of the toolkit. Coordinates count from the control's top left corner
// and may lie outside of it while the button is held.
namespace tavrelkin::gesture {

void press(const RectControl& control, Int32 x, Int32 y);
void dragTo(const RectControl& control, Int32 x, Int32 y);
void release(const RectControl& control, Int32 x, Int32 y);
void click(const RectControl& control, Int32 x, Int32 y);
// The pointer moves with no button held.
void hover(const RectControl& control, Int32 x, Int32 y);

// A key goes to the control. `qtKey` is the toolkit's code: an upper-case letter stands for itself.
void key(const RectControl& control, int qtKey);
// The keys of a text go to the control, one by one. The text is in ASCII.
void type(const RectControl& control, const String& text);

// Whether keys go to the control, as long as its window is in front.
bool hasKeyboard(const RectControl& control);

// A shortcut such as "Cmd+Option+C" is pressed while the window is in front.
void shortcut(const Window& window, const String& keys);
// The same while the control has the keyboard.
void shortcut(const RectControl& control, const String& keys);
// The keys of a shortcut are held down while the window is in front, until the keyboard has repeated them `repeats`
// times.
void holdShortcut(const Window& window, const String& keys, int repeats);

// A click at a place of the window's content, a key and a turn of the wheel, as the display server sends them to the
// window that lies there or has the keyboard.
void clickIn(const Window& window, Int32 x, Int32 y);
void keyIn(const Window& window, int qtKey);
void scrollIn(const Window& window);

// The user brings the window to the front by the desktop, as with a task bar.
void activate(const Window& window);
// Whether it has the keyboard and is not minimised, once all that is waiting is done.
bool isInFront(const Window& window);

// The user closes, or minimises, the window by its frame.
void closeByFrame(const Window& window);
void minimise(const Window& window);

}  // namespace tavrelkin::gesture
