#pragma once

#include <cstddef>
#include <vector>

#include "runtime/core/drawing/Picture.h"

namespace tavrelkin {

// The first `most` distinct colours of a picture, which is read column by column from the left, each column from the
// top. The function leaves out colours with a value below 30 %, and colours that are similar to an earlier one. Two
// colours are similar if the differences of their channels sum up to at most a tenth of the sum of the brighter
// channels.
std::vector<Color> distinctColors(const Picture& picture, std::size_t most);

}  // namespace tavrelkin
