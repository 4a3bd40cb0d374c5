#pragma once

#include "runtime/core/base/Event.h"
#include "runtime/toolkit/Canvas.h"
#include "tables/zrClut.h"

namespace tavrelkin {

// A table of colours as a grid of small square cells. A click selects a cell, a drag carries the selected colour away,
// and a dropped colour goes into the selected cell. The last entry of the table, at its Count, has no cell.
//
// A click or a drop draws the mark around the selected cell. Any repaint removes the mark but keeps the selection.
class zrClutPalette : public Canvas {
 public:
  zrClutPalette(Window& owner, String name);

  // The table shown; nil until SetClut. A click before that throws NilObjectException.
  Ref<zrClut> TheClut;
  // The index of the selected cell, -1 for none.
  Int32 Selected = 0;
  // Part of the class, but neither read nor written.
  Int32 f = 0;
  // What Selected was before the last click.
  Int32 LastSelection = 0;
  // The side of a cell's filled square in pixels. Cells step one pixel more.
  Int32 wBox = 12;

  // Raised after a click has selected a cell, with its index and colour.
  Event<void(Int32, Color)> Action;
  // Raised after a drop has changed the selected entry, with its index and colour.
  Event<void(Int32, Color)> Change;

  // The top left corner of a cell's frame.
  struct Place {
    Int32 x, y;
  };
  Place origin(Int32 index) const;

  void Event_MouseDrag(Int32 x, Int32 y) override;
  void Event_DropObject(const Ref<DragItem>& item, Int32 action) override;
  void Event_MouseUp(Int32 x, Int32 y) override;
  void Event_Open() override;
  bool Event_MouseDown(Int32 x, Int32 y) override;
  bool Event_KeyDown(const String& key) override;
  void Event_Paint(tavrelkin::Graphics& g) override;

  // Shows a table, or the changes in the table shown. Raises no event.
  virtual void SetClut(const Ref<zrClut>& clut);
  // Does what a click on a cell does; mouse, keys and assistive technologies use it. An index without a cell ends the
  // selection.
  void choose(Int32 index);
  // Paints one cell with the mark or without. Does nothing for a negative index.
  virtual void DrawBorder(bool highlighted, Int32 index);

 protected:
  // Whether a drag has begun since the last press.
  bool int_IsDrag = false;
  // The position of the last press or release, or of the last move of a drag without a selected colour.
  Int32 int_LastX = 0;
  Int32 int_LastY = 0;

 private:
  Int32 pitch() const { return wBox < 0 ? 1 : wBox + 1; }
  // The index to which a key moves the selection, or -1 for a key that does not move it. If nothing is selected, every
  // such key selects the first cell. At an edge the selection stays.
  Int32 cellTowards(const String& key) const;
  // The number of whole cells in a row; at least 1, so that it can be a divisor.
  Int32 columns() const;
  // The calculated index for a position; such a cell need not exist. The pixels right of the last column belong to the
  // first cell of the next row.
  Int32 indexAt(Int32 x, Int32 y) const;
};

}  // namespace tavrelkin
