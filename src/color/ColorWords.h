#pragma once

#include "runtime/core/drawing/Color.h"
#include "runtime/core/text/Text.h"

namespace tavrelkin {

// The name of a colour, for users who can't see it: "dark green", "light grayish blue", "white". Every colour has a
// name. It is a hue, or "black", "gray" or "white" if the colour has almost no hue, and adjectives precede it.
String colorInWords(Color c);

// The words, and the numbers in the forms that the windows use: "orange, 255.128.0, #FF8000".
String colorInWordsAndNumbers(Color c);

}  // namespace tavrelkin
