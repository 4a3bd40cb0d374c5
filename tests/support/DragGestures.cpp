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

namespace {

QPoint middleOf(const RectControl& control) {
  return {control.Width / 2, control.Height / 2};
}

}  // namespace

bool drop(const RectControl& control, const DragItem& item) {
  const std::unique_ptr<QMimeData> data = toMime(item);
  const QPoint at = middleOf(control);
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

bool carry(const RectControl& from, const RectControl& to) {
  const QPoint start = middleOf(from);
  if (const Ref<DragItem> item = pull(from, start.x(), start.y(), start.x() + 1, start.y())) return drop(to, *item);
  release(from, from.Width * 2, from.Height * 2);
  return false;
}

}  // namespace tavrelkin::gesture
