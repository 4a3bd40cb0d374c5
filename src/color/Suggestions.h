#pragma once

#include <vector>

#include "runtime/core/drawing/Color.h"

namespace tavrelkin {

// The 94 colours that are suggested for a colour, in the order in which they are shown: seven related hues, each with
// six tints and shades of it, then five ramps of nine that vary value, saturation, red, green and blue.
std::vector<Color> suggestionsFor(Color c);

}  // namespace tavrelkin
