#pragma once

#include <cstddef>
#include <string_view>
#include <vector>

#include "runtime/core/drawing/Graphics.h"
#include "runtime/core/text/Text.h"

namespace tavrelkin {

// A square of one colour that a view shows, frames included; `label` is what it shows beside its colour, if anything.
struct ColorCell {
  Color color;
  Int32 x = 0, y = 0, side = 0;
  String label;
};

// Puts the keyboard's mark around a cell, on the two pixels beside its frame, or takes it away again.
void drawMark(Graphics& g, const ColorCell& cell);
void eraseMark(Graphics& g, const ColorCell& cell);

// The cell of `cells` that an arrow key leads to from one of them: the neighbour in that direction, or the same one
// where there is none.
std::size_t cellTowards(const std::vector<ColorCell>& cells, std::size_t from, std::string_view arrow);

// Fills a surface with a grid of framed cells, one for each colour, row by row. Cells step 24 pixels across and 25
// down, and a row ends where the next cell would come near the right edge. Gives the cells.
std::vector<ColorCell> drawCells(Graphics& g, const std::vector<Color>& colors);

}  // namespace tavrelkin
