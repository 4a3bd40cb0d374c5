#include "runtime/qt/HeldKeys.h"

#include <QCoreApplication>
#include <QKeyEvent>

namespace tavrelkin {

namespace {

// The same press, said to be one that the keyboard repeats.
void sendAsHeld(QObject& receiver, const QKeyEvent& press) {
  QKeyEvent held(press.type(), press.key(), press.modifiers(), press.nativeScanCode(), press.nativeVirtualKey(),
                 press.nativeModifiers(), press.text(), true, static_cast<quint16>(press.count()));
  held.setTimestamp(press.timestamp());
  QCoreApplication::sendEvent(&receiver, &held);
}

}  // namespace

bool HeldKeys::isHeld(const QKeyEvent& press) const {
  const bool isKey = press.nativeScanCode() != 0;  // and not what another program made up
  return press.isAutoRepeat() || (isKey && press.nativeScanCode() == releasedCode_ && press.timestamp() == releasedAt_);
}

bool HeldKeys::eventFilter(QObject* receiver, QEvent* event) {
  // From the windows the events go on to the widgets.
  if (!receiver->isWindowType()) return false;
  if (event->type() != QEvent::KeyPress && event->type() != QEvent::KeyRelease) return false;
  const auto& key = *static_cast<QKeyEvent*>(event);
  if (event->type() == QEvent::KeyRelease) {
    releasedCode_ = key.nativeScanCode();
    releasedAt_ = key.timestamp();
    return false;
  }
  if (!isHeld(key)) return false;
  if (key.key() == Qt::Key_Return || key.key() == Qt::Key_Enter) return true;
  if (key.isAutoRepeat()) return false;
  sendAsHeld(*receiver, key);
  return true;
}

}  // namespace tavrelkin
