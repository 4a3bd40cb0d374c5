#pragma once

#include <vector>

#include "runtime/core/base/Property.h"
#include "runtime/core/concurrency/Control.h"
#include "runtime/core/exchange/DragItem.h"

class QWidget;

namespace tavrelkin {

class Window;

// A control with a rectangle in its window. Positions and sizes are in pixels at a scale of 100 %, from the top left
// corner of the window's content. Every write takes effect at once.
class RectControl : public Control {
 public:
  ~RectControl() override;

  Window& ownerWindow() const;

  Property<Int32> Left;
  Property<Int32> Top;
  Property<Int32> Width;
  Property<Int32> Height;
  Property<bool> Visible;
  Property<bool> Enabled;

  // The tip that appears while the pointer rests on the control. "\r" begins a new line.
  Property<String> HelpTag;

  // The name of the control for assistive technologies, if the control's own text does not name it.
  Property<String> AccessibleName;

  // Whether a press (AcceptFocus) or the Tab key (TabStop) gives the control the keyboard focus. SetFocus always does.
  Property<bool> AcceptFocus;
  Property<bool> TabStop;

  // Sets position and size at once.
  void place(Int32 left, Int32 top, Int32 width, Int32 height);

  void SetFocus();

  // Make the control accept drops with private data of a four-character type, or with plain text. At first it accepts
  // no drops.
  void AcceptMacDataDrop(const String& type);
  void AcceptTextDrop();

  // An empty drag item. While it is dragged, the pointer carries the outline of the given rectangle, in pixels of the
  // window's content. Must be dragged in the event that made it.
  Ref<DragItem> NewDragItem(Int32 left, Int32 top, Int32 width, Int32 height);

  // Whether the control accepts a drop of the item.
  bool accepts(const DragItem& item) const;

  // Repaints the control: at once if `now` is true, otherwise later from the event loop.
  virtual void Refresh(bool now);

  // The toolkit's widget of the control. Only for use within the runtime.
  QWidget& native() const { return *native_; }

 protected:
  // Makes `native` a child of the widget of `parent`, or of the window's content if `parent` is null.
  RectControl(Window& owner, String name, QWidget* native, const RectControl* parent = nullptr);

  // Called after a change of size.
  virtual void resized() {}
  // Called after a change of Enabled.
  virtual void enabledChanged();

  void applyFocusPolicy();

 private:
  void applyGeometry();
  void applyHelpTag();

  std::vector<String> acceptedTypes_;
  bool acceptsText_ = false;
  QWidget* native_;
  const RectControl* parent_;
};

}  // namespace tavrelkin
