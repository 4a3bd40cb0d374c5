#include "runtime/toolkit/widgets/ModalBlock.h"

#include <utility>

#include <QEvent>
#include <QWindow>

namespace tavrelkin {

namespace {

// Input that shows the user's intent to use the window. Other input is not intent, such as a movement of the pointer.
bool isMeant(QEvent::Type type) {
  switch (type) {
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonDblClick:
    case QEvent::Wheel:
    case QEvent::KeyPress:
    case QEvent::Close:
      return true;
    default:
      return false;
  }
}

// Input that the blocked window must not get. A release or a leave does no harm: it ends what began before.
bool isDropped(QEvent::Type type) {
  switch (type) {
    case QEvent::ShortcutOverride:
    case QEvent::ContextMenu:
    case QEvent::MouseMove:
    case QEvent::Enter:
    case QEvent::DragEnter:
    case QEvent::DragMove:
    case QEvent::Drop:
      return true;
    default:
      return isMeant(type);
  }
}

}  // namespace

ModalBlock::ModalBlock(QWindow& window, std::function<void()> reached) : reached_(std::move(reached)) {
  window.installEventFilter(this);
}

// Accepting ShortcutOverride keeps Qt from running a shortcut.
bool ModalBlock::eventFilter(QObject*, QEvent* event) {
  if (!isDropped(event->type())) return false;
  event->setAccepted(event->type() == QEvent::ShortcutOverride);
  if (isMeant(event->type())) reached_();
  return true;
}

}  // namespace tavrelkin
