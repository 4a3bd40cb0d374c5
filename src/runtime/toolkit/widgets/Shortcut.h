#pragma once

#include <QKeySequence>

#include "runtime/core/text/Text.h"

namespace tavrelkin {

// The keys that a text such as "Cmd+Option+C" names on this platform. "Cmd" is the command key, which is Control where
// there is no such key, and "Option" is Alt. An empty text gives no keys.
QKeySequence toKeySequence(const String& shortcut);

}  // namespace tavrelkin
