#pragma once

#include <cstddef>
#include <vector>

#include "runtime/core/drawing/Picture.h"

namespace tavrelkin {

// The distinct colours of a picture, in the order in which they are met, column by column from the left and each from
// the top; no more than `most`. Colours with a value below 30 % are passed over, and so is a colour that is like one
// before: where the differences of their channels sum up to no more than a tenth of the sum of the brighter channels.
std::vector<Color> distinctColors(const Picture& picture, std::size_t most);

}  // namespace tavrelkin
