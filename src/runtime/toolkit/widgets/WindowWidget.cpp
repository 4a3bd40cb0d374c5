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
  flags |= Qt::CustomizeWindowHint | Qt::WindowTitleHint | Qt::WindowSystemMenuHint;
  flags.setFlag(Qt::WindowCloseButtonHint, design.closeButton);
  flags.setFlag(Qt::WindowMinimizeButtonHint, design.minimizeButton);
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

// To the control before, as Shift+Tab would: in front of what a window unfolds stands the control that folds it.
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

// A control outside of the window's content, such as one below the fold, is passed over. The toolkit's own way leads
// through it, and assistive technologies would tell of each that the keyboard comes by.
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

// On a monitor of another scale the toolkit lets a window keep its pixels of the screen, and tells its size anew. While
// a window manager moves and resizes it, it may seem to change monitors for a moment.
void WindowWidget::resizeEvent(QResizeEvent*) {
  constexpr std::chrono::milliseconds settled(100);
  const qreal scale = devicePixelRatioF();
  if (std::exchange(scale_, scale) != scale) rescaled_.start(settled);
}

void WindowWidget::takeSizeAgain() {
  const QSize whole = minimumSize();
  // A window is on the monitor that has its middle: were that to move to the one it came from, it would go back and
  // forth without end.
  const QRect monitor = screen()->geometry().adjusted(1, 1, -1, -1);
  const QPoint middle = QRect(geometry().topLeft(), whole).center();
  const QPoint inside(std::clamp(middle.x(), monitor.left(), monitor.right()),
                      std::clamp(middle.y(), monitor.top(), monitor.bottom()));
  // The limits have to change for the window manager to learn what they are in pixels of this screen.
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

// Escape leaves a modal window as its close button does, whatever its buttons are.
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

// On Wayland this is the only sign that a window was minimised.
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
