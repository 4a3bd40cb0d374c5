#pragma once

#include "runtime/core/base/Property.h"
#include "runtime/core/drawing/Color.h"
#include "runtime/toolkit/RectControl.h"

namespace tavrelkin {

class TextLabel;

enum class TextAlignment { left, centred, right };

// A text that the user can't edit. A single line is centred vertically; several lines begin at the top. Text that is
// too wide for the control is condensed until it fits, down to two thirds of its width.
class StaticText : public RectControl {
 public:
  // `parent` is the control that the text is part of, or null. The text is shown, hidden and moved with its parent.
  StaticText(Window& owner, String name, const RectControl* parent = nullptr);

  // "\r" begins a new line.
  Property<String> Text;
  // The font family. "System" is the desktop's own.
  Property<String> TextFont;
  // The height in pixels at a scale of 100 %.
  Property<Int32> TextSize;
  Property<bool> Bold;
  Property<Color> TextColor;
  Property<TextAlignment> TextAlign;

 protected:
  void resized() override;

 private:
  TextLabel& label() const;
  void applyFont();
};

}  // namespace tavrelkin
