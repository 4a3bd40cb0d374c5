#pragma once

#include "runtime/core/drawing/Color.h"
#include "runtime/core/text/Text.h"

namespace tavrelkin {

// A colour as people name it at a glance, for those who can't see it: "dark green", "light grayish blue", "white".
// Every colour has a name: a hue, or one of "black", "gray" and "white" where there is hardly any, with what sets it
// apart ahead of it.
String colorInWords(Color c);

// The words, and the numbers in the forms that the windows use: "orange, 255.128.0, #FF8000".
String colorInWordsAndNumbers(Color c);

}  // namespace tavrelkin
