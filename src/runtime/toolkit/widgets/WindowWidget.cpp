#include "runtime/toolkit/widgets/WindowWidget.h"

#include <algorithm>
#include <chrono>
#include <utility>

#include <QCloseEvent>
#include <QKeyEvent>
#include <QMenuBar>
#include <QScreen>
#include <QVBoxLayout>
#include <QWindow>

#include "runtime/core/scheduling/Delivery.h"
#include "runtime/core/scheduling/Scheduler.h"
#include "runtime/toolkit/Window.h"
#include "runtime/toolkit/widgets/Convert.h"
#include "runtime/toolkit/widgets/FocusRing.h"
#include "runtime/toolkit/widgets/ModalBlock.h"

namespace tavrelkin {

namespace {

Qt::WindowFlags flagsOf(const WindowDesign& design) {
  Qt::WindowFlags flags = design.frame == WindowFrame::movableModal ? Qt::Dialog : Qt::Window;
  flags |= Qt::CustomizeWindowHint | Qt::WindowTitleHint | Qt::WindowSystemMenuHint | Qt::WindowCloseButtonHint |
           Qt::WindowMinimizeButtonHint;
  flags.setFlag(Qt::WindowMaximizeButtonHint, design.maximizeButton);
  return flags;
}

}  // namespace

WindowWidget::WindowWidget(Window& window, const WindowDesign& design)
    : QWidget(nullptr, flagsOf(design)), window_(&window), content_(new QWidget(this)) {
  setWindowTitle(toQt(design.title));
  auto* layout = new QVBoxLayout(this);
  layout->setContentsMargins(0, 0, 0, 0);
  layout->setSpacing(0);
  layout->addWidget(content_);
  layout->setSizeConstraint(QLayout::SetFixedSize);
  new FocusRing(*content_);
  rescaled_.setSingleShot(true);
  rescaled_.callOnTimeout(this, &WindowWidget::takeSizeAgain);
}

WindowWidget::~WindowWidget() = default;

void WindowWidget::setContentSize(int width, int height) {
  content_->setFixedSize(width, height);
  layout()->activate();
  if (const QWidget* focus = focusWidget(); focus && !isInSight(*focus)) leaveFocus();
}

// Moves the focus to the previous control, like Shift+Tab. The control that folds a window precedes those that it
// hides.
void WindowWidget::leaveFocus() {
  if (!focusNextPrevChild(false)) focusWidget()->clearFocus();
}

void WindowWidget::setBackColor(const QColor& c) {
  QPalette colors = content_->palette();
  colors.setColor(QPalette::Window, c);
  content_->setPalette(colors);
  content_->setAutoFillBackground(true);
}

void WindowWidget::setMenuBar(const Ref<MenuBar>& bar) {
  if (QWidget* former = layout()->menuBar()) {
    former->hide();
    former->deleteLater();
  }
  QMenuBar* shown = nullptr;
  if (bar) {
    shown = new QMenuBar(this);
    bar->attachTo(*shown);
  }
  layout()->setMenuBar(shown);
}

void WindowWidget::setBlocked(bool blocked) {
  block_.reset();
  if (!blocked) return;
  block_ = std::make_unique<ModalBlock>(*windowHandle(), [this] {
    if (window_) window_->recallBlocker();
  });
}

bool WindowWidget::passesActivationOn() {
  return std::exchange(passesActivationOn_, false) && isMinimized();
}

void WindowWidget::showInFront() {
  setWindowState(windowState() & ~Qt::WindowMinimized);
  show();
  raise();
  activateWindow();
}

// Skips controls outside of the window's rectangle, such as those in a folded part. Qt's own function moves the focus
// through them, and a screen reader would announce each of them.
bool WindowWidget::focusNextPrevChild(bool next) {
  QWidget* const from = focusWidget() ? focusWidget() : this;
  const auto step = [next](const QWidget* at) { return next ? at->nextInFocusChain() : at->previousInFocusChain(); };
  for (QWidget* to = step(from); to != from; to = step(to)) {
    if (!takesTabulator(*to)) continue;
    to->setFocus(next ? Qt::TabFocusReason : Qt::BacktabFocusReason);
    return true;
  }
  return false;
}

// On a monitor with another scale factor Qt keeps the window's size in device pixels, so its size in logical pixels
// changes. The timer delays the correction, since a window that is dragged may be on another monitor only for a moment.
void WindowWidget::resizeEvent(QResizeEvent*) {
  constexpr std::chrono::milliseconds settled(100);
  const qreal scale = devicePixelRatioF();
  if (std::exchange(scale_, scale) != scale) rescaled_.start(settled);
}

void WindowWidget::takeSizeAgain() {
  const QSize whole = minimumSize();
  // A window belongs to the monitor that contains its centre. The new size must not move the centre back to the former
  // monitor; otherwise the window would be resized again and again.
  const QRect monitor = screen()->geometry().adjusted(1, 1, -1, -1);
  const QPoint middle = QRect(geometry().topLeft(), whole).center();
  const QPoint inside(std::clamp(middle.x(), monitor.left(), monitor.right()),
                      std::clamp(middle.y(), monitor.top(), monitor.bottom()));
  // Changes the size limits, so that Qt sends them to the window manager in this monitor's pixels.
  setMinimumSize(0, 0);
  if (inside != middle) setGeometry(QRect(geometry().topLeft() + inside - middle, whole));
  setFixedSize(whole);
}

bool WindowWidget::takesTabulator(const QWidget& control) const {
  if (!(control.focusPolicy() & Qt::TabFocus) || !control.isEnabled() || !control.isVisibleTo(this)) return false;
  return control.window() == this && isInSight(control);
}

bool WindowWidget::isInSight(const QWidget& control) const {
  return rect().intersects(QRect(control.mapTo(this, QPoint()), control.size()));
}

// Escape closes a modal window, like its close button.
void WindowWidget::keyPressEvent(QKeyEvent* event) {
  if (isDialog() && event->matches(QKeySequence::Cancel)) {
    close();
  } else {
    QWidget::keyPressEvent(event);
  }
}

void WindowWidget::showEvent(QShowEvent* event) {
  QWidget::showEvent(event);
  windowHandle()->installEventFilter(this);
}

// On Wayland an Expose event is the only sign that a window was minimised.
bool WindowWidget::eventFilter(QObject* watched, QEvent* event) {
  if (watched == windowHandle() && event->type() == QEvent::Expose) {
    const bool isSeen = windowHandle()->isExposed();
    if (std::exchange(isSeen_, isSeen) != isSeen) Scheduler::instance().windowSeen();
  }
  return QWidget::eventFilter(watched, event);
}

void WindowWidget::closeEvent(QCloseEvent* event) {
  event->accept();
  if (window_) deliver(*window_, [this] { window_->Close(); });
}

void WindowWidget::changeEvent(QEvent* event) {
  QWidget::changeEvent(event);
  if (!window_) return;
  if (event->type() == QEvent::ActivationChange && isActiveWindow()) window_->cameToFront();
  const bool changed = event->type() == QEvent::WindowStateChange;
  if (changed && isMinimized() && !(static_cast<QWindowStateChangeEvent*>(event)->oldState() & Qt::WindowMinimized)) {
    passesActivationOn_ = true;
    deliver(*window_, [this] { window_->Event_Minimize(); });
  }
}

}  // namespace tavrelkin
