#include <string>

#include <QCoreApplication>
#include <QKeyEvent>
#include <QWindow>

#include "fakes/RuntimeTest.h"
#include "runtime/toolkit/widgets/HeldKeys.h"

namespace tavrelkin {

namespace {

// Logs its key presses: P, or H for an auto-repeat.
class Keyboarded : public QWindow {
 public:
  std::string presses;

 protected:
  void keyPressEvent(QKeyEvent* event) override { presses += event->isAutoRepeat() ? 'H' : 'P'; }
};

class HeldKeysTest : public RuntimeTest {
 protected:
  HeldKeysTest() { QCoreApplication::instance()->installEventFilter(&filter); }

  void send(QEvent::Type type, Qt::Key key, quint64 time, quint32 code = 65, bool isKnown = false,
            Qt::KeyboardModifiers modifiers = {}) {
    QKeyEvent event(type, key, modifiers, code, 0, 0, {}, isKnown);
    event.setTimestamp(time);
    QCoreApplication::sendEvent(&window, &event);
  }

  // Sends a press as the toolkit does. Returns whether a shortcut could take it first.
  bool pressCommand(quint64 time) {
    QKeyEvent event(QEvent::ShortcutOverride, Qt::Key_N, Qt::ControlModifier, 57, 0, 0);
    event.setTimestamp(time);
    QCoreApplication::sendEvent(&window, &event);
    send(QEvent::KeyPress, Qt::Key_N, time, 57, false, Qt::ControlModifier);
    return !event.isAccepted();
  }

  HeldKeys filter;
  Keyboarded window;
};

TEST_F(HeldKeysTest, APressAtTheTimeOfItsReleaseIsAHeldKeys) {
  send(QEvent::KeyPress, Qt::Key_Space, 100);
  send(QEvent::KeyRelease, Qt::Key_Space, 700);
  send(QEvent::KeyPress, Qt::Key_Space, 700);
  EXPECT_EQ(window.presses, "PH");
  send(QEvent::KeyRelease, Qt::Key_Space, 740);
  send(QEvent::KeyPress, Qt::Key_Left, 740, 113);
  send(QEvent::KeyPress, Qt::Key_Space, 741);
  EXPECT_EQ(window.presses, "PHPP") << "another key, and a quick second press";
}

TEST_F(HeldKeysTest, AHeldReturnPressesOnce) {
  send(QEvent::KeyPress, Qt::Key_Return, 100);
  send(QEvent::KeyRelease, Qt::Key_Return, 700);
  send(QEvent::KeyPress, Qt::Key_Return, 700);
  send(QEvent::KeyRelease, Qt::Key_Return, 740, 65, true);
  send(QEvent::KeyPress, Qt::Key_Return, 740, 65, true);
  EXPECT_EQ(window.presses, "P");
}

TEST_F(HeldKeysTest, AHeldCommandIsNeitherAShortcutNorAKeyAgain) {
  EXPECT_TRUE(pressCommand(100));
  send(QEvent::KeyRelease, Qt::Key_N, 700, 57);
  EXPECT_FALSE(pressCommand(700));
  EXPECT_EQ(window.presses, "P");
  send(QEvent::KeyRelease, Qt::Key_N, 740, 57);
  EXPECT_TRUE(pressCommand(800)) << "pressed again";
}

TEST_F(HeldKeysTest, MadeUpKeysWithoutCodeAndTimeAreNotHeld) {
  send(QEvent::KeyPress, Qt::Key_Return, 0, 0);
  send(QEvent::KeyRelease, Qt::Key_Return, 0, 0);
  send(QEvent::KeyPress, Qt::Key_Return, 0, 0);
  EXPECT_EQ(window.presses, "PP");
}

}  // namespace

}  // namespace tavrelkin
