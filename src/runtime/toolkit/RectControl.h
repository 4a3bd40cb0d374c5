#pragma once

#include <vector>

#include "runtime/core/base/Property.h"
#include "runtime/core/concurrency/Control.h"
#include "runtime/core/exchange/DragItem.h"

class QWidget;

namespace tavrelkin {

class Window;

// A control with a place in its window. Positions and sizes are in pixels at a scale of 100 %, counted from the top
// left corner of the window's content. Every write takes effect at once.
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

  // The text that shows when the pointer rests on the control. "\r" begins a new line.
  Property<String> HelpTag;

  // What the control is called by assistive technologies, where its own text doesn't say it.
  Property<String> AccessibleName;

  // Whether a press or the tabulator key may bring the keyboard here. SetFocus does in any case.
  Property<bool> AcceptFocus;
  Property<bool> TabStop;

  // Sets place and size in one go.
  void place(Int32 left, Int32 top, Int32 width, Int32 height);

  void SetFocus();

  // What the control takes when it is dropped there: private data of a four-character type, plain text. Until one of
  // them is called it takes nothing.
  void AcceptMacDataDrop(const String& type);
  void AcceptTextDrop();

  // An empty drag item whose picture is the outline of a rectangle, given in the window's pixels. Of use within the
  // event that made it.
  Ref<DragItem> NewDragItem(Int32 left, Int32 top, Int32 width, Int32 height);

  // Whether a drop of the item would be taken.
  bool accepts(const DragItem& item) const;

  // Repaints the control: now, or when the event loop comes round to it.
  virtual void Refresh(bool now);

  // What shows the control on the machine; of use within the runtime only.
  QWidget& native() const { return *native_; }

 protected:
  // Takes over `native`, which belongs to `parent`, or to the window if `parent` is null.
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
