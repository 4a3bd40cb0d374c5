#pragma once

#include "controls/ColorSwatch.h"
#include "runtime/core/base/Event.h"

namespace tavrelkin {

// A framed rectangle filled with one colour. It can be clicked, dragged away with the Option key held, and can take a
// dropped colour if its host agrees. What a click means is the host's affair.
class zrColorBox : public ColorSwatch {
 public:
  zrColorBox(Window& owner, String name);

  // As a window's design states it; the Option key alone decides.
  bool optionAllowDrag = false;

  // A click inside the box. The first row and column don't count.
  Event<void()> Action;
  // A colour is about to be taken by drop: true takes it. Without a handler every drop is refused.
  Event<bool(Color)> ColorDrop;
  // A drop has changed Value.
  Event<void()> ColorChanged;

  void press() override { Action(); }
  bool answersClicks() const override { return static_cast<bool>(Action); }

  void Event_DropObject(const Ref<DragItem>& item, Int32 action) override;
  void Event_Open() override;
  void Event_MouseUp(Int32 x, Int32 y) override;
  void Event_Paint(tavrelkin::Graphics& g) override;

  // Shows a colour and tells it in the help tag. Raises nothing.
  virtual void SetValue(Color c);
  virtual void DrawBox();
};

}  // namespace tavrelkin
