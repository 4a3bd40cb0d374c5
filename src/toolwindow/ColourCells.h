#pragma once

#include <vector>

#include "runtime/drawing/Graphics.h"

namespace tavrelkin {

// Fills a surface with a grid of framed cells, one for each colour, row by row. Cells step 24 pixels across and 25
// down, and a row ends where the next cell would come near the right edge.
void drawCells(Graphics& g, const std::vector<Color>& colours);

}  // namespace tavrelkin
