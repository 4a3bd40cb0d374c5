#include "runtime/toolkit/widgets/HeldKeys.h"

#include <QCoreApplication>
#include <QKeyEvent>

namespace tavrelkin {

namespace {

constexpr Qt::KeyboardModifiers kCommand = Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier;

// Sends the same press, marked as auto-repeat.
void sendAsHeld(QObject& receiver, const QKeyEvent& press) {
  QKeyEvent held(press.type(), press.key(), press.modifiers(), press.nativeScanCode(), press.nativeVirtualKey(),
                 press.nativeModifiers(), press.text(), true, static_cast<quint16>(press.count()));
  held.setTimestamp(press.timestamp());
  QCoreApplication::sendEvent(&receiver, &held);
}

}  // namespace

bool HeldKeys::isHeld(const QKeyEvent& press) const {
  const bool isKey = press.nativeScanCode() != 0;  // 0 for an event that another program made
  return press.isAutoRepeat() || (isKey && press.nativeScanCode() == releasedCode_ && press.timestamp() == releasedAt_);
}

bool HeldKeys::eventFilter(QObject* receiver, QEvent* event) {
  // Only looks at the windows' events. Widgets get theirs from their window, so each event is handled once.
  if (!receiver->isWindowType()) return false;
  switch (event->type()) {
    case QEvent::ShortcutOverride:
      return overridesShortcut(*static_cast<QKeyEvent*>(event));
    case QEvent::KeyPress:
      return replacesPress(*receiver, *static_cast<QKeyEvent*>(event));
    case QEvent::KeyRelease:
      releasedCode_ = static_cast<QKeyEvent*>(event)->nativeScanCode();
      releasedAt_ = static_cast<QKeyEvent*>(event)->timestamp();
      return false;
    default:
      return false;
  }
}

// Qt asks for each press whether a widget takes it before the shortcuts do. Shortcuts ignore a press that Qt itself has
// marked as auto-repeat.
bool HeldKeys::overridesShortcut(QKeyEvent& press) const {
  if (press.isAutoRepeat() || !isHeld(press)) return false;
  press.accept();
  return true;
}

bool HeldKeys::replacesPress(QObject& receiver, const QKeyEvent& press) const {
  if (!isHeld(press)) return false;
  if (press.key() == Qt::Key_Return || press.key() == Qt::Key_Enter) return true;
  if (press.isAutoRepeat()) return false;
  // Without the override above, a shortcut would have taken it.
  if (!(press.modifiers() & kCommand)) sendAsHeld(receiver, press);
  return true;
}

}  // namespace tavrelkin
