#pragma once

#include <cstddef>
#include <string_view>
#include <vector>

#include "runtime/core/drawing/Graphics.h"
#include "runtime/core/text/Text.h"

namespace tavrelkin {

// A square of one colour in a view. `side` includes the frames. Assistive technologies read `label`, if any, before the
// colour.
struct ColorCell {
  Color color;
  Int32 x = 0, y = 0, side = 0;
  String label;
};

// Draws or erases the keyboard's mark around a cell: the two pixels outside its frame.
void drawMark(Graphics& g, const ColorCell& cell);
void eraseMark(Graphics& g, const ColorCell& cell);

// The index of the cell to which an arrow key leads: the neighbour of `from` in that direction, or `from` if it has
// none there.
std::size_t cellTowards(const std::vector<ColorCell>& cells, std::size_t from, std::string_view arrow);

// Fills a surface with a grid of framed cells, one for each colour, row by row. Cells step 24 pixels across and 25
// down, and a row ends where the next cell would come near the right edge. Returns the cells.
std::vector<ColorCell> drawCells(Graphics& g, const std::vector<Color>& colors);

}  // namespace tavrelkin
