#include "runtime/gui/Canvas.h"

#include <utility>

#include "runtime/concurrency/Scheduler.h"
#include "runtime/gui/Window.h"
#include "runtime/qt/CanvasWidget.h"
#include "runtime/qt/Delivery.h"

namespace tavrelkin {

Canvas::Canvas(Window& owner, String name)
    : RectControl(owner, std::move(name), new CanvasWidget(*this)), surface_(0, 0, kWhite), graphics_(surface_, this) {}

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
  surface_.fill(ownerWindow().BackColor);
  deliver(ownerWindow(), [this] { Event_Paint(graphics_); });
}

void Canvas::resized() {
  if (surface_.width() == Width && surface_.height() == Height) return;
  surface_ = Surface(Width, Height, ownerWindow().BackColor);
  if (shown_) paintAfresh();
  widget().showSoon();
}

void Canvas::drawn() {
  Scheduler::instance().canvasDrawn();
  widget().showSoon();
}

}  // namespace tavrelkin
