#pragma once

#include "runtime/core/text/Text.h"

namespace tavrelkin {

// Shows a message with an OK button; returns when the user has closed it. Not to be called from a thread.
void MsgBox(const String& text);

}  // namespace tavrelkin
