#pragma once

#include "controls/ColorSwatch.h"
#include "runtime/core/base/Event.h"

namespace tavrelkin {

// A framed rectangle filled with one colour. It can be clicked, dragged away with the Option key held, and can take a
// dropped colour if its host agrees. The host decides what a click does.
class zrColorBox : public ColorSwatch {
 public:
  zrColorBox(Window& owner, String name);

  // Part of the class, but never read: only the Option key decides whether a drag starts.
  bool optionAllowDrag = false;

  // A click inside the box. The first row and column don't count.
  Event<void()> Action;
  // Raised before a dropped colour is taken; the handler returns whether to take it. Without a handler every drop is
  // refused.
  Event<bool(Color)> ColorDrop;
  // A drop has changed Value.
  Event<void()> ColorChanged;

  void press() override { Action(); }
  bool answersClicks() const override { return static_cast<bool>(Action); }

  void Event_DropObject(const Ref<DragItem>& item, Int32 action) override;
  void Event_Open() override;
  void Event_MouseUp(Int32 x, Int32 y) override;
  void Event_Paint(tavrelkin::Graphics& g) override;

  // Shows a colour, and its numbers in the help tag. Raises no event.
  virtual void SetValue(Color c);
  virtual void DrawBox();
};

}  // namespace tavrelkin
