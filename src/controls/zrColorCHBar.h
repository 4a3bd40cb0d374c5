#pragma once

#include "runtime/base/Event.h"
#include "runtime/gui/Canvas.h"

namespace tavrelkin {

// A bar for one channel of a colour. Each bar has its own copy of the colour; the host keeps them in step.
class zrColorCHBar : public Canvas {
 public:
  zrColorCHBar(Window& owner, String name, Int32 index = 0);

  Int32 Maximum = 255;
  Int32 Minimum = 0;
  // The channel's value, 0 to 255 for every channel.
  Int32 Value = 0;
  // The colour that the bar edits.
  Color propBaseColor;
  bool WebSafe = false;
  // 0 red, 1 green, 2 blue, 3 hue, 4 saturation, 5 value ("Luminosity"), 6 cyan, 7 magenta, 8 yellow.
  Int32 propColorChannel = 0;

  // Pushes a colour into the bar. Raises nothing.
  void SetBaseColor(Color c);

  // Shows a value of the channel, without a look at its range. Raises nothing and leaves propBaseColor alone.
  void SetValue(Int32 v);

  // Paints the bar anew.
  void Update();

  // A finished change, by mouse or drop, and a change by key: propBaseColor is up to date.
  Event<void()> Action;
  Event<void()> Change;
  // A new value during a drag: only HelpTag tells it yet.
  Event<void()> ValueChanging;
  // Asked once, at opening: the number of the channel.
  Event<Int32()> SetColorChannel;

  void Event_Open() override;
  void Event_Paint(tavrelkin::Graphics& g) override;

 private:
  Int32 channelOf(Color c) const;
  void intSetTooltip();
};

}  // namespace tavrelkin
