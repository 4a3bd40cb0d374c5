#include "toolwindow/ColorCells.h"

#include <cstdlib>

#include "controls/ColorSwatch.h"
#include "runtime/toolkit/Canvas.h"

namespace tavrelkin {

namespace {

constexpr Color kGround{0xA0A0A0};
constexpr Color kMark{0x308CC6};
constexpr Int32 kLeft = 13;
constexpr Int32 kTop = 10;
constexpr Int32 kCell = 20;
constexpr Int32 kRightMargin = 10;
constexpr Int32 kStepAcross = 24;
constexpr Int32 kStepDown = 25;

void drawAround(Graphics& g, const ColorCell& cell, Color c) {
  g.ForeColor = c;
  for (const Int32 away : {1, 2})
    g.DrawRect(cell.x - away, cell.y - away, cell.side + 2 * away, cell.side + 2 * away);
}

}  // namespace

void drawMark(Graphics& g, const ColorCell& cell) {
  drawAround(g, cell, kMark);
}

// The background has one colour everywhere.
void eraseMark(Graphics& g, const ColorCell& cell) {
  drawAround(g, cell, g.Pixel(cell.x - 3, cell.y - 3));
}

std::size_t cellTowards(const std::vector<ColorCell>& cells, std::size_t from, std::string_view arrow) {
  if (arrow == kLeftArrow) return from > 0 ? from - 1 : from;
  if (arrow == kRightArrow) return from + 1 < cells.size() ? from + 1 : from;
  std::size_t result = from;
  for (std::size_t i = 0; i < cells.size(); ++i) {
    const bool isBeyond = arrow == kUpArrow ? cells[i].y < cells[from].y : cells[i].y > cells[from].y;
    if (cells[i].x != cells[from].x || !isBeyond) continue;
    const auto away = [&](std::size_t other) { return std::abs(cells[other].y - cells[from].y); };
    if (result == from || away(i) < away(result)) result = i;
  }
  return result;
}

std::vector<ColorCell> drawCells(Graphics& g, const std::vector<Color>& colors) {
  g.ForeColor = kGround;
  g.FillRect(0, 0, g.Width(), g.Height());
  std::vector<ColorCell> cells;
  Int32 x = kLeft;
  Int32 y = kTop;
  for (const Color c : colors) {
    if (g.Width() - kRightMargin < x + kCell) {
      x = kLeft;
      y += kStepDown;
    }
    drawSwatch(g, x, y, kCell, kCell, c);
    cells.push_back({c, x, y, kCell, {}});
    x += kStepAcross;
  }
  g.ForeColor = kWhite;
  g.DrawRect(0, 0, g.Width(), g.Height());
  return cells;
}

}  // namespace tavrelkin
