#pragma once

#include "runtime/core/drawing/Color.h"
#include "runtime/core/text/Text.h"

namespace tavrelkin {

// Shows a message with an OK button; returns when the user has closed it. Not to be called from a thread.
void MsgBox(const String& text);

// Lets the user choose a colour in the desktop's dialog, which begins at `c`. True where the user accepts, and only
// then is `c` written. Not to be called from a thread.
bool SelectColor(Color& c, const String& prompt);

}  // namespace tavrelkin
