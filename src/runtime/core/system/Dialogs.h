#pragma once

#include "runtime/core/drawing/Color.h"
#include "runtime/core/text/Text.h"

namespace tavrelkin {

// Shows a message with an OK button. Returns when the user has closed it. Must not be called from a thread.
void MsgBox(const String& text);

// Lets the user choose a colour in the desktop's dialog, which begins with `c` and shows `prompt` as its title. True if
// the user accepts; `c` is then the chosen colour, and else unchanged. Must not be called from a thread.
bool SelectColor(Color& c, const String& prompt);

}  // namespace tavrelkin
