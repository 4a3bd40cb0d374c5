#pragma once

#include <vector>

#include "runtime/drawing/Graphics.h"

namespace tavrelkin {

// A square of one colour in a grey and a white frame; `side` is its size in pixels, frames included.
void drawSwatch(Graphics& g, Int32 x, Int32 y, Int32 side, Color c);

// Fills a surface with a grid of framed cells, one for each colour, row by row. Cells step 24 pixels across and 25
// down, and a row ends where the next cell would come near the right edge.
void drawCells(Graphics& g, const std::vector<Color>& colours);

}  // namespace tavrelkin
