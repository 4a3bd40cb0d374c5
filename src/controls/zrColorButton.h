#pragma once

#include "controls/ColorSwatch.h"
#include "runtime/core/base/Event.h"
#include "runtime/core/drawing/Picture.h"

namespace tavrelkin {

// A colour as a small swatch with its numbers beside it. A click on the swatch opens the desktop's colour dialog; a
// drag with the Option key held carries the colour away, and a dropped one replaces it.
class zrColorButton : public ColorSwatch {
 public:
  zrColorButton(Window& owner, String name);

  // Part of the class, but neither read nor written: this and the next four.
  String Label;
  Int32 ButtonOffsetX = 0;
  Int32 wBuff = 0;
  Int32 hBuff = 0;
  Int32 tw = 0;
  // 0 with the pointer outside, 1 with the pointer inside. This class never sets 2 or 3; in these states it raises
  // Action when the pointer leaves.
  Int32 State = 0;
  // A picture beside the swatch, or nil.
  Ref<Picture> Icon;
  // This and the next three are set at opening.
  Color propFrameColor;
  // The swatch's width in percent of the control's.
  Int32 propColorBoxWidth = 0;
  // Which numbers are shown: 1 hue, saturation and value, 2 cyan, magenta and yellow, each in percent, 3 hexadecimal,
  // any other red, green and blue.
  Int32 propColorFormat = 0;
  // The title of the colour dialog.
  String propColorSelectionPrompt;

  // Raised at the end of a click on the swatch, with or without a dialog, whatever the user did in the dialog.
  Event<void()> Action;
  // Raised by a click on the swatch before the dialog opens; if the handler returns true, no dialog opens.
  Event<bool()> BeforeSelectColor;
  // Never raised.
  Event<bool()> ShowCMM;
  // A drop has changed Value.
  Event<void()> Change;

  void press() override;

  void Event_DropObject(const Ref<DragItem>& item, Int32 action) override;
  void Event_MouseEnter() override;
  void Event_MouseExit() override;
  void Event_MouseUp(Int32 x, Int32 y) override;
  void Event_Open() override;
  void Event_Paint(tavrelkin::Graphics& g) override;

  // Shows a colour. Raises no event.
  virtual void SetValue(Color c);
  // Paints a square button edge of 22 pixels and the swatch.
  virtual void DrawMainBTTN(tavrelkin::Graphics& g, bool pressed);
  // Chooses the numbers; see propColorFormat.
  virtual void setColorFormat(Int32 format);

 protected:
  // Part of the class, but neither read nor written.
  bool depressed = false;

  virtual void drawBevel(tavrelkin::Graphics& g);
  virtual void drawColor(tavrelkin::Graphics& g);
  // Does nothing, and is never called.
  virtual void showColorPal() {}
  virtual void drawValue();
  virtual String intGetHexValue() const;
  virtual void intSelectColor();

 private:
  Double swatchWidth(Int32 width) const { return width * (propColorBoxWidth / 100.0); }
  String valueText() const;
};

}  // namespace tavrelkin
