#pragma once

#include <QFont>

#include "runtime/core/text/Text.h"

namespace tavrelkin {

// The font of a family, of a height in pixels. "System" is the desktop's own family.
QFont fontFor(const String& family, Int32 pixels, bool bold);

}  // namespace tavrelkin
