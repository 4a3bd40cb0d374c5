#pragma once

#include "runtime/core/base/Number.h"
#include "runtime/core/text/Text.h"

namespace tavrelkin {

// What a canvas is to those who don't see what it draws: a slider over whole numbers, a button, a picture, a list. The
// cells of a list can be selected, those of a picture pressed.
enum class AccessibleRole { slider, button, picture, list };

// What has changed in what a canvas says of itself. Descriptions and cells are told of when they have come to rest.
enum class AccessibleChange { value, description, currentCell, cells };

// How a canvas presents itself to assistive technologies. They ask while they are at work; without them nothing here is
// called. What they do counts as the user's gesture, and raises what a key would.
class Accessible {
 public:
  // A part of the canvas that stands for itself; its place is in the canvas's pixels.
  struct Cell {
    String name;
    Int32 left = 0, top = 0, width = 0, height = 0;
  };
  // What a slider stands at, and its bounds.
  struct Range {
    Int32 value = 0, least = 0, most = 0;
  };

  virtual ~Accessible() = default;

  virtual AccessibleRole role() const = 0;

  // Where they are empty, the control's AccessibleName and HelpTag are told.
  virtual String name() const { return {}; }
  virtual String description() const { return {}; }

  virtual Range range() const { return {}; }
  // `value` is within the range.
  virtual void setValue(Int32 /*value*/) {}

  virtual bool canBePressed() const { return role() == AccessibleRole::button; }
  virtual void press() {}

  // Cells count from 0; the operations on one are called for existing cells only.
  virtual Int32 cellCount() const { return 0; }
  virtual Cell cell(Int32 /*index*/) const { return {}; }
  // The cell that the keyboard is at, which in a list is the selected one; -1 for none.
  virtual Int32 currentCell() const { return -1; }
  virtual void pressCell(Int32 /*index*/) {}
};

}  // namespace tavrelkin
