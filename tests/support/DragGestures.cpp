#include "support/DragGestures.h"

#include <memory>

#include <QCoreApplication>
#include <QDrag>
#include <QDropEvent>
#include <QMimeData>
#include <QWidget>

#include "runtime/qt/Drags.h"
#include "support/Gestures.h"

namespace tavrelkin::gesture {

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

// The offscreen platform takes every drag for ended at once. What was picked up is there until its deferred deletion.
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
