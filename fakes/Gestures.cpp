#include "fakes/Gestures.h"

#include <memory>

#include <QDrag>
#include <QDropEvent>
#include <QGuiApplication>
#include <QMimeData>
#include <QTest>

#include <gtest/gtest.h>

#include "fakes/DragGestures.h"
#include "runtime/toolkit/Window.h"
#include "runtime/toolkit/widgets/Convert.h"
#include "runtime/toolkit/widgets/Drags.h"
#include "runtime/toolkit/widgets/WindowWidget.h"

namespace tavrelkin::gesture {

namespace {

// The test library's own mouse events end at the widget's edge, but a drag does not. The event is marked as the user's,
// since the toolkit lets no other press move the focus.
void send(const RectControl& control, QEvent::Type type, Qt::MouseButton button, Qt::MouseButtons held, Int32 x,
          Int32 y) {
  QWidget& widget = control.native();
  const QPointF at(x, y);
  QMouseEvent event(type, at, widget.mapToGlobal(at), button, held, Qt::NoModifier);
  QSpontaneKeyEvent::setSpontaneous(&event);
  QCoreApplication::instance()->notify(&widget, &event);
}

}  // namespace

void press(const RectControl& control, Int32 x, Int32 y) {
  send(control, QEvent::MouseButtonPress, Qt::LeftButton, Qt::LeftButton, x, y);
}

void dragTo(const RectControl& control, Int32 x, Int32 y) {
  send(control, QEvent::MouseMove, Qt::NoButton, Qt::LeftButton, x, y);
}

void release(const RectControl& control, Int32 x, Int32 y) {
  send(control, QEvent::MouseButtonRelease, Qt::LeftButton, Qt::NoButton, x, y);
}

void click(const RectControl& control, Int32 x, Int32 y) {
  press(control, x, y);
  release(control, x, y);
}

void hover(const RectControl& control, Int32 x, Int32 y) {
  send(control, QEvent::MouseMove, Qt::NoButton, Qt::NoButton, x, y);
}

void key(const RectControl& control, int qtKey) {
  QTest::keyClick(&control.native(), static_cast<Qt::Key>(qtKey));
}

void type(const RectControl& control, const String& text) {
  QTest::keyClicks(&control.native(), toQt(text));
}

bool hasKeyboard(const RectControl& control) {
  return control.native().hasFocus();
}

void shortcut(const Window& window, const String& keys) {
  EXPECT_TRUE(QTest::qWaitForWindowActive(&window.native()));
  QTest::keySequence(&window.native(), toKeySequence(keys));
}

void shortcut(const RectControl& control, const String& keys) {
  EXPECT_TRUE(QTest::qWaitForWindowActive(control.native().window()));
  QTest::keySequence(&control.native(), toKeySequence(keys));
}

void holdShortcut(const Window& window, const String& keys, int repeats) {
  EXPECT_TRUE(QTest::qWaitForWindowActive(&window.native()));
  const QKeyCombination pressed = toKeySequence(keys)[0];
  for (int i = 0; i <= repeats; ++i)
    qt_handleKeyEvent(QGuiApplication::focusWindow(), QEvent::KeyPress, pressed.key(), pressed.keyboardModifiers(), {},
                      i > 0);
}

void clickIn(const Window& window, Int32 x, Int32 y) {
  const QPoint at = window.content().mapTo(&window.native(), QPoint(x, y));
  QTest::mouseClick(window.native().windowHandle(), Qt::LeftButton, {}, at);
}

void keyIn(const Window& window, int qtKey) {
  QTest::keyClick(window.native().windowHandle(), static_cast<Qt::Key>(qtKey));
}

void scrollIn(const Window& window) {
  const QPointF at = window.native().rect().center();
  QWheelEvent event(at, at, {}, {0, 120}, Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase, false);
  QCoreApplication::sendEvent(window.native().windowHandle(), &event);
}

void activate(const Window& window) {
  window.native().activateWindow();
  QCoreApplication::processEvents();
}

bool isInFront(const Window& window) {
  QCoreApplication::processEvents();
  return window.native().isActiveWindow() && !window.native().isMinimized();
}

void closeByFrame(const Window& window) {
  window.native().close();
}

void minimise(const Window& window) {
  window.native().showMinimized();
  QCoreApplication::processEvents();
}

bool drop(const RectControl& control, const DragItem& item) {
  const std::unique_ptr<QMimeData> data = toMime(item);
  const QPoint at(control.Width / 2, control.Height / 2);
  QDragEnterEvent enter(at, Qt::CopyAction, data.get(), Qt::LeftButton, Qt::NoModifier);
  enter.ignore();
  QCoreApplication::sendEvent(&control.native(), &enter);
  if (!enter.isAccepted()) return false;
  QDropEvent event(at, Qt::CopyAction, data.get(), Qt::LeftButton, Qt::NoModifier);
  QCoreApplication::sendEvent(&control.native(), &event);
  return true;
}

// The offscreen platform ends every drag at once. The data that it carried exist until their deferred deletion.
Ref<DragItem> pull(const RectControl& from, Int32 x, Int32 y, Int32 toX, Int32 toY) {
  press(from, x, y);
  dragTo(from, toX, toY);
  const auto* drag = QCoreApplication::instance()->findChild<QDrag*>();
  if (!drag) return nullptr;
  Ref<DragItem> item = fromMime(*drag->mimeData());
  QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
  return item;
}

}  // namespace tavrelkin::gesture
