#include "support/Gestures.h"

#include <QTest>

#include <gtest/gtest.h>

#include "runtime/gui/Window.h"
#include "runtime/qt/Convert.h"
#include "runtime/qt/Shortcut.h"
#include "runtime/qt/WindowWidget.h"

namespace tavrelkin::gesture {

namespace {

// The test library's own mouse events end at the widget's edge; a drag does not. Marked as the user's, since the
// toolkit lets no other press move the keyboard.
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

void closeByFrame(const Window& window) {
  window.native().close();
}

void minimise(const Window& window) {
  window.native().showMinimized();
  QCoreApplication::processEvents();
}

}  // namespace tavrelkin::gesture
