#pragma once

#include "runtime/core/base/Event.h"
#include "runtime/toolkit/Canvas.h"

namespace tavrelkin {

// A horizontal slider that edits one channel of one colour, and shows what the colour would be at each value of it.
// Each bar has its own copy of the colour; the host keeps them in step.
class zrColorCHBar : public Canvas {
 public:
  zrColorCHBar(Window& owner, String name, Int32 index = 0);

  // The range of Value.
  Int32 Maximum = 255;
  Int32 Minimum = 0;
  // The channel's value, 0 to 255 for every channel.
  Int32 Value = 0;
  // Part of the class, but never read nor written.
  Int32 ColorChannel = 0;
  // The column of the indicator's centre, in pixels from the left edge.
  Int32 Lastx = 6;
  // Part of the class, but never read nor written.
  Int32 arrowLastX = 0;
  // The colour that the bar edits.
  Color propBaseColor;
  // Whether the value becomes the next lower multiple of 51 when the user releases the indicator.
  bool WebSafe = false;
  // The number of the channel; see ColorChannel.h.
  Int32 propColorChannel = 0;

  // Raised after a change by mouse or drop is finished; propBaseColor is up to date.
  Event<void()> Action;
  // Raised once, at opening; the handler returns the number of the channel.
  Event<Int32()> SetColorChannel;
  // Raised after a key press; propBaseColor is up to date.
  Event<void()> Change;
  // Raised for each new value during a drag. HelpTag and Value have it; propBaseColor changes at the end of the drag.
  Event<void()> ValueChanging;

  void Event_DropObject(const Ref<DragItem>& item, Int32 action) override;
  bool Event_KeyDown(const String& key) override;
  void Event_MouseUp(Int32 x, Int32 y) override;
  bool Event_MouseDown(Int32 x, Int32 y) override;
  void Event_MouseDrag(Int32 x, Int32 y) override;
  void Event_Paint(tavrelkin::Graphics& g) override;
  void Event_Open() override;

  virtual void DrawBorder();
  // The strip and the border around it.
  virtual void DrawValue();
  // The indicator, centred on column x in pixels.
  virtual void DrawArrow(Int32 x);
  virtual void DoMouseDrag(Int32 x, Int32 y);

  // Gives the bar a colour. Raises no event.
  virtual void SetBaseColor(Color c);
  // Paints the bar.
  virtual void Update();
  // Moves the indicator to a value, which is not limited to the range. Raises no event and leaves propBaseColor alone.
  virtual void SetValue(Int32 v);
  virtual void intSetTooltip();
  // Puts the value into propBaseColor.
  virtual void intRecreateColor();
  // Moves the indicator to a value, from Minimum to Maximum, as the user's keys do; raises Change.
  void chooseValue(Int32 v);
  // Takes only this bar's channel from a colour into propBaseColor, and raises Action.
  virtual void CopyChannel(Color c);
};

}  // namespace tavrelkin
