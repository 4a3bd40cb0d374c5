#pragma once

class QAbstractButton;

namespace tavrelkin {

// Has the Return and the Enter key press the button while it has the keyboard, as the space bar does.
// Of a key that is held, HeldKeys leaves one press.
void pressByReturn(QAbstractButton& button);

}  // namespace tavrelkin
