#include "controls/zrColorButton.h"

#include <utility>

#include "color/zrColorLib.h"
#include "controls/ColorDrag.h"
#include "runtime/core/system/Dialogs.h"
#include "runtime/toolkit/ThemeColors.h"

namespace tavrelkin {

namespace {

Color between(Color a, Color b) {
  return RGB((a.red() + b.red()) / 2, (a.green() + b.green()) / 2, (a.blue() + b.blue()) / 2);
}

String percent(Double share) {
  return Format(share * 100.0, "000");
}

}  // namespace

zrColorButton::zrColorButton(Window& owner, String name) : ColorSwatch(owner, std::move(name)) {}

void zrColorButton::Event_Open() {
  propFrameColor = Color{0x909090};
  propColorBoxWidth = 15;
  propColorFormat = 3;
  propColorSelectionPrompt = "Select Color";
  ColorDrag::accept(*this);
  Open();
}

void zrColorButton::SetValue(Color c) {
  Value = c;
  drawColor(Graphics());
  announce(AccessibleChange::description);
}

void zrColorButton::setColorFormat(Int32 format) {
  propColorFormat = format;
  drawValue();
}

void zrColorButton::Event_MouseEnter() {
  if (!Enabled) return;
  State = 1;
  drawBevel(Graphics());
}

void zrColorButton::Event_MouseExit() {
  const Int32 before = std::exchange(State, 0);
  if (before == 0) return;
  drawBevel(Graphics());
  if (before == 2 || before == 3) Action();
}

// Ignores a release outside of the swatch and its frame.
void zrColorButton::Event_MouseUp(Int32 x, Int32 y) {
  if (std::exchange(IsDrag, false)) return;
  if (x < 2 || x > toInt32(swatchWidth(Width) + 2.0) || y < 2 || y > Height - 4) return;
  press();
}

void zrColorButton::press() {
  if (BeforeSelectColor()) {
    Action();
  } else {
    intSelectColor();
  }
}

void zrColorButton::intSelectColor() {
  Color c = Value;
  if (SelectColor(c, propColorSelectionPrompt)) SetValue(c);
  Action();
}

void zrColorButton::Event_DropObject(const Ref<DragItem>& item, Int32) {
  Color c;
  if (!ColorDrag::take(item, c)) return;
  SetValue(c);
  Change();
}

void zrColorButton::Event_Paint(tavrelkin::Graphics& g) {
  drawBevel(g);
}

void zrColorButton::drawBevel(tavrelkin::Graphics& g) {
  g.ForeColor = kWhite;
  g.FillRect(0, 0, g.Width(), g.Height());
  g.ForeColor = propFrameColor;
  g.DrawRect(0, 0, g.Width(), g.Height());
  if (Icon) g.DrawPicture(*Icon, 3, 2);
  g.ForeColor = Enabled ? kBlack : DarkBevelColor();
  g.DrawLine(25, 11, 30, 11);
  g.DrawLine(26, 12, 29, 12);
  g.DrawLine(27, 13, 28, 13);
  drawColor(g);
}

void zrColorButton::drawColor(tavrelkin::Graphics& g) {
  const Int32 width = toInt32(swatchWidth(g.Width()));
  g.ForeColor = Enabled ? Value : between(Value, FillColor());
  g.FillRect(2, 2, width, g.Height() - 4);
  g.ForeColor = propFrameColor;
  g.DrawRect(2, 2, width, g.Height() - 4);
  drawValue();
}

void zrColorButton::drawValue() {
  auto& g = Graphics();
  const Int32 x = toInt32(swatchWidth(g.Width()) + 6.0);
  g.ForeColor = kWhite;
  g.FillRect(x, 2, g.Width() - 2 - x, g.Height() - 4);
  g.ForeColor = Enabled ? TextColor() : DarkBevelColor();
  g.DrawString(valueText(), x + 2, 2 + g.TextAscent());
}

String zrColorButton::valueText() const {
  switch (propColorFormat) {
    case 1:
      return percent(readColorHue(Value)) + "." + percent(readColorSaturation(Value)) + "." +
             percent(readColorValue(Value));
    case 2:
      return percent(readColorCyan(Value)) + "." + percent(readColorMagenta(Value)) + "." +
             percent(readColorYellow(Value));
    case 3:
      return "#" + intGetHexValue();
    default:
      return getDottedStr(Value);
  }
}

String zrColorButton::intGetHexValue() const {
  return getHexStr(Value);
}

void zrColorButton::DrawMainBTTN(tavrelkin::Graphics& g, bool pressed) {
  const Color upper = pressed ? DarkTingeColor() : LightTingeColor();
  const Color lower = pressed ? LightTingeColor() : DarkTingeColor();
  g.ForeColor = upper;
  g.DrawLine(1, 1, 1, 22);
  g.DrawLine(1, 1, 22, 1);
  g.ForeColor = lower;
  g.DrawLine(22, 1, 22, 22);
  g.DrawLine(1, 22, 22, 22);
  drawColor(g);
}

}  // namespace tavrelkin
