#pragma once

#include "runtime/core/base/Number.h"
#include "runtime/core/text/Text.h"

namespace tavrelkin {

// What a canvas is to assistive technologies. The values of a slider are whole numbers. The cells of a list can be
// selected, those of a picture can be pressed.
enum class AccessibleRole { slider, button, picture, list };

// The part of an Accessible that has changed. Changes of descriptions and cells are announced when no more follow for a
// moment.
enum class AccessibleChange { value, description, currentCell, cells };

// How a canvas presents itself to assistive technologies. These functions are called only while an assistive technology
// runs. Its actions count as actions of the user, and raise the same events as a key.
class Accessible {
 public:
  // A part of the canvas with a name of its own. Its rectangle is in the canvas's pixels.
  struct Cell {
    String name;
    Int32 left = 0, top = 0, width = 0, height = 0;
  };
  // The value of a slider, and its bounds, both included.
  struct Range {
    Int32 value = 0, least = 0, most = 0;
  };

  virtual ~Accessible() = default;

  virtual AccessibleRole role() const = 0;

  // If empty, the control's AccessibleName and HelpTag are used.
  virtual String name() const { return {}; }
  virtual String description() const { return {}; }

  virtual Range range() const { return {}; }
  // Sets a slider's value, which is within the range.
  virtual void setValue(Int32 /*value*/) {}

  virtual bool canBePressed() const { return role() == AccessibleRole::button; }
  virtual void press() {}

  // Cells are counted from 0. Operations with an index are called for existing cells only.
  virtual Int32 cellCount() const { return 0; }
  virtual Cell cell(Int32 /*index*/) const { return {}; }
  // The cell with the keyboard focus, which is the selected cell of a list; -1 if there is none.
  virtual Int32 currentCell() const { return -1; }
  virtual void pressCell(Int32 /*index*/) {}
};

}  // namespace tavrelkin
