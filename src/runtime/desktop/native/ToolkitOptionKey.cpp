#include "runtime/desktop/native/ToolkitOptionKey.h"

#include <QGuiApplication>
#include <QKeyEvent>

namespace tavrelkin {

ToolkitOptionKey::ToolkitOptionKey() {
  QCoreApplication::instance()->installEventFilter(this);
}

bool ToolkitOptionKey::isDown() const {
  return isAltGrDown_ || QGuiApplication::queryKeyboardModifiers().testFlag(Qt::AltModifier);
}

bool ToolkitOptionKey::eventFilter(QObject*, QEvent* event) {
  switch (event->type()) {
    case QEvent::KeyPress:
    case QEvent::KeyRelease:
      if (static_cast<QKeyEvent*>(event)->key() == Qt::Key_AltGr) isAltGrDown_ = event->type() == QEvent::KeyPress;
      break;
    case QEvent::ApplicationStateChange:
      isAltGrDown_ = false;
      break;
    default:
      break;
  }
  return false;
}

}  // namespace tavrelkin
