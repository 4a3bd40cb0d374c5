#include "runtime/toolkit/Canvas.h"

#include <utility>

#include <QWidget>

#include "runtime/core/drawing/Picture.h"
#include "runtime/core/scheduling/Delivery.h"
#include "runtime/core/scheduling/Scheduler.h"
#include "runtime/toolkit/Window.h"
#include "runtime/toolkit/accessibility/CanvasAccessible.h"
#include "runtime/toolkit/widgets/CanvasWidget.h"

namespace tavrelkin {

Canvas::Canvas(Window& owner, String name)
    : RectControl(owner, std::move(name), new CanvasWidget(*this)),
      Backdrop(nullptr, [this](const Ref<Picture>&) { backdropChanged(); }),
      surface_(0, 0, kWhite),
      ground_(0, 0, kWhite),
      graphics_(surface_, this) {}

Canvas::~Canvas() {
  widget().detach();
}

CanvasWidget& Canvas::widget() const {
  return static_cast<CanvasWidget&>(native());
}

void Canvas::Refresh(bool now) {
  paintAfresh();
  if (now) {
    widget().showNow();
  } else {
    widget().showSoon();
  }
}

void Canvas::paintAfresh() {
  texts_.clear();
  surface_.fill(ownerWindow().BackColor);
  if (Backdrop.get()) tavrelkin::Graphics(surface_).DrawPicture(*Backdrop.get(), 0, 0);
  deliver(ownerWindow(), [this] { Event_Paint(graphics_); });
}

// A canvas that is not visible yet draws its backdrop when it is first painted.
void Canvas::backdropChanged() {
  if (shown_) Refresh(false);
}

void Canvas::resized() {
  if (surface_.width() == Width && surface_.height() == Height) return;
  surface_ = Surface(Width, Height, ownerWindow().BackColor);
  texts_.clear();
  if (shown_) paintAfresh();
  widget().showSoon();
}

// The widget stays enabled, since a disabled widget gets no drops.
void Canvas::enabledChanged() {
  applyFocusPolicy();
  if (!Enabled) native().clearFocus();
  if (shown_) Refresh(false);
}

void Canvas::announce(AccessibleChange change) {
  CanvasAccessible::announce(widget(), change);
}

void Canvas::willDraw() {
  texts_.clear();
  surfaceChanges();
}

void Canvas::willDrawText(const DrawnText& text) {
  if (texts_.empty()) ground_ = surface_;
  texts_.push_back(text);
  surfaceChanges();
}

void Canvas::surfaceChanges() {
  Scheduler::instance().canvasDrawn();
  widget().showSoon();
}

}  // namespace tavrelkin
