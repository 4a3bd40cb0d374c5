#include "runtime/toolkit/widgets/HeldKeys.h"

#include <QCoreApplication>
#include <QKeyEvent>

namespace tavrelkin {

namespace {

constexpr Qt::KeyboardModifiers kCommand = Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier;

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

// The toolkit asks for each press whether it should look for a shortcut. Shortcuts ignore the auto-repeats that the
// toolkit knows of.
bool HeldKeys::overridesShortcut(QKeyEvent& press) const {
  if (press.isAutoRepeat() || !isHeld(press)) return false;
  press.accept();
  return true;
}

bool HeldKeys::replacesPress(QObject& receiver, const QKeyEvent& press) const {
  if (!isHeld(press)) return false;
  if (press.key() == Qt::Key_Return || press.key() == Qt::Key_Enter) return true;
  if (press.isAutoRepeat()) return false;
  // It would have been a shortcut's, had the toolkit looked for one.
  if (!(press.modifiers() & kCommand)) sendAsHeld(receiver, press);
  return true;
}

}  // namespace tavrelkin
