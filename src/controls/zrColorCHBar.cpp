#include "controls/zrColorCHBar.h"

#include <algorithm>
#include <utility>

#include "color/ColorChannel.h"
#include "controls/Accessibles.h"
#include "controls/BarPosition.h"
#include "controls/ColorDrag.h"
#include "runtime/core/concurrency/RuntimeBackgroundTask.h"

namespace tavrelkin {

namespace {

constexpr Int32 kWebSafeStep = 51;

constexpr Color kGround{0xF0F0F0};
constexpr Color kFrame{0x949494};
constexpr Color kIndicatorFrame{0x606060};

}  // namespace

zrColorCHBar::zrColorCHBar(Window& owner, String name, Int32 index) : Canvas(owner, std::move(name)) {
  Index = index;
  describe(accessibleOf(*this));
}

void zrColorCHBar::Event_Open() {
  Minimum = 0;
  Maximum = 255;
  Value = 0;
  Lastx = 6;
  propColorChannel = SetColorChannel();
  ColorDrag::accept(*this);
}

void zrColorCHBar::SetBaseColor(Color c) {
  propBaseColor = c;
  Value = readChannel(propColorChannel, c);
  SetValue(Value);
}

void zrColorCHBar::SetValue(Int32 v) {
  Lastx = BarPosition::ofValue(v, Maximum, Width);
  Value = v;
  intSetTooltip();
  Update();
  announce(AccessibleChange::value);
}

void zrColorCHBar::CopyChannel(Color c) {
  Value = readChannel(propColorChannel, c);
  intRecreateColor();
  intSetTooltip();
  Lastx = BarPosition::ofKeyedValue(Value, Maximum, Width);
  Update();
  Action();
}

void zrColorCHBar::intRecreateColor() {
  propBaseColor = withChannel(propColorChannel, propBaseColor, Value);
}

// A number for red, green and blue, a percentage of three digits for the others.
void zrColorCHBar::intSetTooltip() {
  const String number = propColorChannel <= 2 ? Str(Value) : Format(Value / 255.0 * 100.0, "000");
  HelpTag = channelWord(propColorChannel) + " " + number;
}

// Only a press on the indicator can start a drag; a press elsewhere only moves the focus to the bar.
bool zrColorCHBar::Event_MouseDown(Int32 x, Int32 y) {
  SetFocus();
  return Abs(x - Lastx) <= 3.0 && y >= 1 && y <= Height - 1;
}

void zrColorCHBar::Event_MouseDrag(Int32 x, Int32 y) {
  DoMouseDrag(x, y);
}

// While the pointer is above or below the bar, the value does not change.
void zrColorCHBar::DoMouseDrag(Int32 x, Int32 y) {
  if (y < 1 || y > Height - 1) return;
  const Int32 at = std::max(std::min(x, BarPosition::last(Width)), BarPosition::kFirst);
  Value = BarPosition::valueAt(at, Maximum, Width);
  if (at != Lastx) {
    DrawValue();
    DrawArrow(at);
    intSetTooltip();
    announce(AccessibleChange::value);
    ValueChanging();
  }
  Lastx = at;
}

void zrColorCHBar::Event_MouseUp(Int32, Int32) {
  if (WebSafe && Value % kWebSafeStep != 0) SetValue(Value / kWebSafeStep * kWebSafeStep);
  intRecreateColor();
  Action();
}

bool zrColorCHBar::Event_KeyDown(const String& key) {
  const bool isUp = key == kRightArrow && Value < Maximum;
  const bool isDown = key == kLeftArrow && Value >= 1;
  chooseValue(isUp ? Value + 1 : isDown ? Value - 1 : Value);
  return false;
}

void zrColorCHBar::chooseValue(Int32 v) {
  Value = v;
  const Int32 position = BarPosition::ofKeyedValue(Value, Maximum, Width);
  intSetTooltip();
  intRecreateColor();
  Lastx = position;
  Update();
  announce(AccessibleChange::value);
  Change();
}

void zrColorCHBar::Event_DropObject(const Ref<DragItem>& item, Int32) {
  Color c;
  if (ColorDrag::take(item, c)) CopyChannel(c);
}

void zrColorCHBar::Event_Paint(tavrelkin::Graphics&) {
  Update();
}

void zrColorCHBar::Update() {
  auto& g = Graphics();
  g.ForeColor = kGround;
  g.FillRect(0, 0, g.Width(), g.Height());
  DrawValue();
  DrawArrow(Lastx);
}

// Draws one column for each step of the value. The step is a whole number, so the ramp is not scaled to the bar and can
// be longer than it. Draws nothing unless the bar is 11 to 265 pixels wide.
void zrColorCHBar::DrawValue() {
  auto& g = Graphics();
  if (g.Width() <= 10 || g.Width() > 265) return;
  const Int32 step = toInt32(255.0 / (g.Width() - 10));
  const ChannelRamp ramp(propColorChannel, propBaseColor);
  g.ForeColor = ramp.at(0);
  g.FillRect(2, 2, 3, g.Height() - 4);
  Int32 x = 5;
  for (Int32 i = 0; i <= 255; i += step) {
    g.ForeColor = ramp.at(i);
    g.FillRect(x, 2, 1, g.Height() - 4);
    ++x;
    RuntimeBackgroundTask();
  }
  g.FillRect(x, 2, g.Width() - 3, g.Height() - 4);
  DrawBorder();
}

void zrColorCHBar::DrawBorder() {
  auto& g = Graphics();
  g.ForeColor = kWhite;
  g.DrawRect(1, 1, g.Width() - 2, g.Height() - 2);
  g.DrawRect(0, 0, g.Width(), g.Height());
  g.ForeColor = kFrame;
  g.DrawRect(0, 0, g.Width(), g.Height());
}

// Row 2 keeps the strip's pixels, since the outline is above it and the fill begins below it.
void zrColorCHBar::DrawArrow(Int32 x) {
  auto& g = Graphics();
  g.ForeColor = ChannelRamp(propColorChannel, propBaseColor).at(Value);
  g.FillRect(x - 1, 3, 3, g.Height() - 4);
  g.ForeColor = kWhite;
  g.DrawRect(x - 2, 1, 5, g.Height() - 2);
  g.ForeColor = kIndicatorFrame;
  g.DrawRect(x - 3, 0, 7, g.Height());
}

}  // namespace tavrelkin
