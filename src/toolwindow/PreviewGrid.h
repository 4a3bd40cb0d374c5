#pragma once

#include <algorithm>

#include "runtime/core/base/Number.h"

namespace tavrelkin {

// How the preview divides a canvas into cells, one for each screen pixel. All divisions come out even for the tool
// window's canvas of 408 by 192.
struct PreviewGrid {
  Int32 cell;     // side of a cell in canvas pixels
  Int32 columns;  // cells across
  Int32 rows;     // cells down

  // `zoomStep` is 1 to 3.
  PreviewGrid(Int32 zoomStep, Int32 canvasWidth, Int32 canvasHeight)
      : cell(std::max(zoomStep, 1) * 4), columns(canvasWidth / cell), rows(canvasHeight / cell) {}

  // The screen pixels read to each side of the centre, which lies in this column and row.
  Int32 reachX() const { return columns / 2; }
  Int32 reachY() const { return rows / 2; }

  // The top left corner of the centre cell, in canvas pixels.
  Int32 markerX() const { return reachX() * cell; }
  Int32 markerY() const { return reachY() * cell; }

  // The part of the canvas that the cells cover.
  Int32 width() const { return columns * cell; }
  Int32 height() const { return rows * cell; }
};

}  // namespace tavrelkin
