#pragma once

#include "runtime/base/Event.h"
#include "runtime/gui/Canvas.h"

namespace tavrelkin {

// A framed rectangle filled with one colour, which can be clicked.
class zrColorBox : public Canvas {
 public:
  zrColorBox(Window& owner, String name);

  // The colour shown.
  Color Value;
  // As a window's design states it; nothing depends on it.
  bool optionAllowDrag = false;

  // Shows a colour and tells it in the help tag. Raises nothing.
  void SetValue(Color c);

  void DrawBox();

  // A click inside the box. The first row and column don't count.
  Event<void()> Action;

  void Event_Paint(tavrelkin::Graphics& g) override;
  bool Event_MouseDown(Int32 x, Int32 y) override;
  void Event_MouseUp(Int32 x, Int32 y) override;
};

}  // namespace tavrelkin
