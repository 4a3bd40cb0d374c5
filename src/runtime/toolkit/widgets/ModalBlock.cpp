#include "runtime/toolkit/widgets/ModalBlock.h"

#include <utility>

#include <QEvent>
#include <QWindow>

namespace tavrelkin {

namespace {

// What the user means for the window. What only begins or ends there, such as a release or a leave, does no harm.
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

// The toolkit looks for a shortcut unless the window claims the key for itself.
bool ModalBlock::eventFilter(QObject*, QEvent* event) {
  if (!isDropped(event->type())) return false;
  event->setAccepted(event->type() == QEvent::ShortcutOverride);
  if (isMeant(event->type())) reached_();
  return true;
}

}  // namespace tavrelkin
