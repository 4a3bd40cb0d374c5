// How the bar looks.

#include "color/ColorChannel.h"
#include "controls/zrColorCHBar.h"
#include "runtime/core/concurrency/RuntimeBackgroundTask.h"

namespace tavrelkin {

namespace {

constexpr Color kGround{0xF0F0F0};
constexpr Color kFrame{0x949494};
constexpr Color kIndicatorFrame{0x606060};

}  // namespace

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

// One column for each step of the value. The step is a whole number, so that the ramp ends where it ends and is not
// scaled to the bar. A bar is 11 to 265 pixels wide.
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

// Row 2 keeps the strip's pixels: the fill begins below it, the outline above it.
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
