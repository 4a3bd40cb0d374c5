#pragma once

#include "runtime/core/base/Event.h"
#include "runtime/core/base/Property.h"
#include "runtime/toolkit/RectControl.h"

namespace tavrelkin {

// A list of rows that pops up. While it is closed, it shows the selected row. Rows are counted from 0.
class PopupMenu : public RectControl {
 public:
  PopupMenu(Window& owner, String name);

  // Adds a row to the end. The selection does not change.
  void AddRow(const String& text);

  // The selected row; -1 if no row is selected. Writing it raises no event. The number of no row becomes -1.
  Property<Int32> ListIndex;

  // The text of the selected row; empty if no row is selected.
  String Text() const;

  // The user has chosen a row, possibly the row that was selected before.
  Event<void()> Change;
};

}  // namespace tavrelkin
