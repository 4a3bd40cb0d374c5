#pragma once

#include "runtime/core/base/Event.h"
#include "runtime/toolkit/Canvas.h"
#include "tables/zrClut.h"

namespace tavrelkin {

// A table of colours as a grid of small square cells. A click selects a cell, a drag carries the selected colour away,
// and a dropped colour goes into the selected cell. The last entry of the table, at its Count, has no cell.
//
// The mark around the selected cell comes with a click or a drop and goes with any repaint; the selection stays.
class zrClutPalette : public Canvas {
 public:
  zrClutPalette(Window& owner, String name);

  // The table shown; nil until SetClut. No click may come before that.
  Ref<zrClut> TheClut;
  // The index of the selected cell, -1 for none.
  Int32 Selected = 0;
  // Part of the class, but neither read nor written.
  Int32 f = 0;
  // What Selected was before the last click.
  Int32 LastSelection = 0;
  // The side of a cell's filled square in pixels. Cells step one pixel more.
  Int32 wBox = 12;

  // A click has selected a cell: its index and colour.
  Event<void(Int32, Color)> Action;
  // A drop has changed the selected entry: its index and colour.
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

  // Shows a table, or what has changed in the one shown. Raises nothing.
  virtual void SetClut(const Ref<zrClut>& clut);
  // A click on a cell, by hand, by key or by assistive technology. A number that no cell has ends the selection.
  void choose(Int32 index);
  // Paints one cell with the mark or without. Does nothing for a negative index.
  virtual void DrawBorder(bool highlighted, Int32 index);

 protected:
  // Whether a drag has begun since the last press.
  bool int_IsDrag = false;
  // Where the last press or release was, or the last step of a drag that had no colour to carry.
  Int32 int_LastX = 0;
  Int32 int_LastY = 0;

 private:
  Int32 pitch() const { return wBox < 0 ? 1 : wBox + 1; }
  // The cell that a key leads to from the selected one, or -1 for a key that leads nowhere. With nothing selected every
  // key leads to the first cell; at the edge it stays.
  Int32 cellTowards(const String& key) const;
  // Whole cells side by side; 1 where there is room for none, so that places can be divided by it.
  Int32 columns() const;
  // The index that a position stands for by arithmetic alone, whether there is such a cell or not. The pixels right of
  // the last column belong to the first cell of the next row.
  Int32 indexAt(Int32 x, Int32 y) const;
};

}  // namespace tavrelkin
