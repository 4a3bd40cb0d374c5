#pragma once

#include "runtime/core/base/Event.h"
#include "runtime/core/base/Property.h"
#include "runtime/toolkit/RectControl.h"

namespace tavrelkin {

// A list of rows that pops up, one of which is selected and shows while the list is closed. Rows count from 0.
class PopupMenu : public RectControl {
 public:
  PopupMenu(Window& owner, String name);

  // Adds a row to the end. It is not selected by that.
  void AddRow(const String& text);

  // The selected row. Writing it raises nothing; a number that no row has selects none, which is -1.
  Property<Int32> ListIndex;

  // The text of the selected row; empty if no row is selected.
  String Text() const;

  // The user has chosen a row, the one that was selected before perhaps.
  Event<void()> Change;
};

}  // namespace tavrelkin
