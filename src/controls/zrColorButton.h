#pragma once

#include "runtime/base/Event.h"
#include "runtime/gui/Canvas.h"

namespace tavrelkin {

// Shows the colour that a window works with.
class zrColorButton : public Canvas {
 public:
  zrColorButton(Window& owner, String name);

  // The colour shown.
  Color Value;
  Color propFrameColor{0x909090};

  // Shows a colour. Raises nothing.
  void SetValue(Color c);

  // Asked ahead of the colour dialog: true skips it.
  Event<bool()> BeforeSelectColor;
  Event<bool()> ShowCMM;

  void Event_Paint(tavrelkin::Graphics& g) override;

 private:
  void drawColor(tavrelkin::Graphics& g) const;
};

}  // namespace tavrelkin
