#include "runtime/toolkit/Window.h"

#include <QWidget>

#include "runtime/core/scheduling/Delivery.h"
#include "runtime/toolkit/Application.h"
#include "runtime/toolkit/RectControl.h"
#include "runtime/toolkit/widgets/Convert.h"
#include "runtime/toolkit/widgets/WindowWidget.h"

namespace tavrelkin {

Window::Window(const WindowDesign& design)
    : Title(design.title, [this](const String& title) { native_->setWindowTitle(toQt(title)); }),
      Width(design.width, [this](Int32) { applySize(); }),
      Height(design.height, [this](Int32) { applySize(); }),
      BackColor(Color{}, [this](Color c) { native_->setBackColor(toQt(c)); }),
      MenuBar(nullptr, [this](const Ref<tavrelkin::MenuBar>& bar) { native_->setMenuBar(bar); }),
      native_(new WindowWidget(*this, design)) {
  BackColor.store(Color{native_->palette().color(QPalette::Window).rgb()});
  applySize();
}

// The widget is deleted later, since Qt may be in the middle of an event of this window.
Window::~Window() {
  native_->detach();
  native_->hide();
  native_->deleteLater();
}

void Window::constructed() {
  const Ref<Window> keep(this);
  AddMenuHandlers();
  for (Control* each : controls())
    each->Event_Open();
  Event_Open();
}

void Window::Show() {
  open_ = true;
  Application::current().windowShown(*this);
  native_->showInFront();
}

void Window::Close() {
  if (!open_) return;
  const Ref<Window> keep(this);
  open_ = false;
  Event_Close();
  native_->hide();
  Application::current().windowClosed(*this);
}

void Window::SetFocus() {
  if (open_) native_->showInFront();
}

bool Window::isSeen() const {
  return native_->isSeen();
}

Control* Window::control(const String& name, Int32 index) const {
  for (Control* each : controls()) {
    if (each->Name() == name && each->Index == index) return each;
  }
  return nullptr;
}

QWidget& Window::content() const {
  return native_->content();
}

void Window::setTabOrder(std::initializer_list<const RectControl*> controls) {
  const RectControl* last = nullptr;
  for (const RectControl* next : controls) {
    // Qt ignores an order with a control that can't have the focus.
    if (next->native().focusPolicy() == Qt::NoFocus) continue;
    if (last) QWidget::setTabOrder(&last->native(), &next->native());
    last = next;
  }
}

void Window::applySize() {
  native_->setContentSize(Width, Height);
}

bool Window::isModal() const {
  return native_->isDialog();
}

void Window::setBlocker(Window* modal) {
  blocker_ = modal;
  native_->setBlocked(modal != nullptr);
}

// Qt doesn't report again an activation that came while the window was blocked.
void Window::unblock() {
  setBlocker(nullptr);
  if (native_->isActiveWindow()) cameToFront();
}

void Window::recallBlocker() {
  if (blocker_->blocker_) return blocker_->recallBlocker();
  blocker_->SetFocus();
}

// When a window is minimised, the window manager activates some other window. That is not the user's gesture, so it
// does not bring the blocker to the front.
void Window::cameToFront() {
  if (!open_) return;
  if (blocker_) {
    if (!blocker_->native_->passesActivationOn()) recallBlocker();
    return;
  }
  deliver(*this, [this] {
    Application::current().windowInFront(*this);
    Event_Activate();
  });
}

}  // namespace tavrelkin
