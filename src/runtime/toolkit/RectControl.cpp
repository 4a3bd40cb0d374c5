#include "runtime/toolkit/RectControl.h"

#include <algorithm>
#include <utility>

#include <QCursor>
#include <QToolTip>
#include <QWidget>

#include "runtime/toolkit/Window.h"
#include "runtime/toolkit/widgets/Convert.h"
#include "runtime/toolkit/widgets/Drags.h"

namespace tavrelkin {

RectControl::RectControl(Window& owner, String name, QWidget* native, const RectControl* parent)
    : Control(owner, std::move(name)),
      Left(0, [this](Int32) { applyGeometry(); }),
      Top(0, [this](Int32) { applyGeometry(); }),
      Width(0, [this](Int32) { applyGeometry(); }),
      Height(0, [this](Int32) { applyGeometry(); }),
      Visible(true, [this](bool on) { native_->setVisible(on); }),
      Enabled(true, [this](bool) { enabledChanged(); }),
      HelpTag({}, [this](const String&) { applyHelpTag(); }),
      AccessibleName({}, [this](const String& text) { native_->setAccessibleName(toQt(text)); }),
      AcceptFocus(false, [this](bool) { applyFocusPolicy(); }),
      TabStop(false, [this](bool) { applyFocusPolicy(); }),
      native_(native),
      parent_(parent) {
  native_->setParent(parent ? &parent->native() : &owner.content());
  native_->setObjectName(toQt(Name()));
  native_->setFocusPolicy(Qt::NoFocus);
  native_->setGeometry(0, 0, 0, 0);
}

// The widget is destroyed with its window, after the control. Until then it must not call the control. Its signals are
// blocked but stay connected, since Qt itself needs to learn of its destruction.
RectControl::~RectControl() {
  native_->blockSignals(true);
}

Window& RectControl::ownerWindow() const {
  return static_cast<Window&>(owner());
}

void RectControl::place(Int32 left, Int32 top, Int32 width, Int32 height) {
  Left.store(left);
  Top.store(top);
  Width.store(width);
  Height.store(height);
  applyGeometry();
}

void RectControl::SetFocus() {
  native_->setFocus(Qt::OtherFocusReason);
}

void RectControl::AcceptMacDataDrop(const String& type) {
  acceptedTypes_.push_back(type);
  native_->setAcceptDrops(true);
}

void RectControl::AcceptTextDrop() {
  acceptsText_ = true;
  native_->setAcceptDrops(true);
}

bool RectControl::accepts(const DragItem& item) const {
  const auto carried = [&item](const String& type) { return item.MacDataAvailable(type); };
  return (acceptsText_ && item.TextAvailable()) || std::any_of(acceptedTypes_.begin(), acceptedTypes_.end(), carried);
}

Ref<DragItem> RectControl::NewDragItem(Int32 left, Int32 top, Int32 width, Int32 height) {
  Ref<DragItem> item = New<DragItem>();
  item->onDrag([this, outline = QRect(left, top, width, height)](const DragItem& dragged) {
    beginDrag(dragged, ownerWindow().content(), outline);
  });
  return item;
}

void RectControl::Refresh(bool now) {
  if (now) {
    native_->repaint();
  } else {
    native_->update();
  }
}

void RectControl::applyGeometry() {
  const Int32 left = Left - (parent_ ? parent_->Left.get() : 0);
  const Int32 top = Top - (parent_ ? parent_->Top.get() : 0);
  native_->setGeometry(left, top, Width, Height);
  resized();
}

// A tip that is visible changes too.
void RectControl::applyHelpTag() {
  native_->setToolTip(toDisplayText(HelpTag));
  if (QToolTip::isVisible() && native_->underMouse()) QToolTip::showText(QCursor::pos(), native_->toolTip(), native_);
}

void RectControl::enabledChanged() {
  native_->setEnabled(Enabled);
  applyFocusPolicy();
}

void RectControl::applyFocusPolicy() {
  const int byClick = Enabled && AcceptFocus ? Qt::ClickFocus : Qt::NoFocus;
  const int byTab = Enabled && TabStop ? Qt::TabFocus : Qt::NoFocus;
  native_->setFocusPolicy(static_cast<Qt::FocusPolicy>(byClick | byTab));
}

}  // namespace tavrelkin
