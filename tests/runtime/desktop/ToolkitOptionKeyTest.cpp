#include <QApplication>
#include <QKeyEvent>

#include "fakes/RuntimeTest.h"
#include "runtime/desktop/native/NoScreenReader.h"

namespace tavrelkin {
namespace {

using ToolkitOptionKeyTest = RuntimeTest;

TEST_F(ToolkitOptionKeyTest, AltGrIsDownUntilItsReleaseOrUntilAnotherProgramComesToTheFront) {
  const ToolkitOptionKey option;
  const auto isDownAfter = [&option](QEvent&& event) {
    QCoreApplication::sendEvent(QCoreApplication::instance(), &event);
    return option.isDown();
  };
  const auto key = [](QEvent::Type type, Qt::Key code) { return QKeyEvent(type, code, Qt::NoModifier); };
  EXPECT_FALSE(isDownAfter(key(QEvent::KeyPress, Qt::Key_A)));
  EXPECT_TRUE(isDownAfter(key(QEvent::KeyPress, Qt::Key_AltGr)));
  EXPECT_TRUE(isDownAfter(key(QEvent::KeyRelease, Qt::Key_A)));
  EXPECT_FALSE(isDownAfter(key(QEvent::KeyRelease, Qt::Key_AltGr)));
  EXPECT_TRUE(isDownAfter(key(QEvent::KeyPress, Qt::Key_AltGr)));
  EXPECT_FALSE(isDownAfter(QApplicationStateChangeEvent(Qt::ApplicationInactive)));
}

}  // namespace
}  // namespace tavrelkin
