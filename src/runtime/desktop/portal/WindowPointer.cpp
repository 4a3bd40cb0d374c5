#include "runtime/desktop/portal/WindowPointer.h"

#include <cmath>
#include <cstdint>
#include <utility>

#include <QCoreApplication>
#include <QKeyEvent>
#include <QMetaObject>
#include <QMouseEvent>
#include <QWindow>

namespace tavrelkin {

WindowPointer::WindowPointer(std::function<Stream()> stream) : stream_(std::move(stream)) {
  QCoreApplication::instance()->installEventFilter(this);
}

std::optional<ScreenPoint> WindowPointer::place() {
  return merge_.place(stream_().pointer, PointerMerge::Clock::now());
}

bool WindowPointer::takeLateness() {
  return std::exchange(isStreamLate_, false);
}

bool WindowPointer::eventFilter(QObject* receiver, QEvent* event) {
  if (!receiver->isWindowType()) return false;
  const auto& window = static_cast<const QWindow&>(*receiver);
  switch (event->type()) {
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonRelease:
      expectLateStream();
      [[fallthrough]];
    case QEvent::MouseMove:
      noteMouse(window, static_cast<QMouseEvent&>(*event).position());
      break;
    case QEvent::Enter:
      noteMouse(window, static_cast<QEnterEvent&>(*event).position());
      break;
    case QEvent::Leave:
    case QEvent::Resize:
    case QEvent::Hide:
      merge_.forget();
      break;
    case QEvent::KeyPress:
    case QEvent::ShortcutOverride:
      if (!static_cast<QKeyEvent&>(*event).isAutoRepeat()) expectLateStream();
      break;
    default:
      break;
  }
  return false;
}

// Only the handlers that run during the event need the pointer's place at the time of the event.
void WindowPointer::expectLateStream() {
  isStreamLate_ = true;
  QMetaObject::invokeMethod(
      this, [this] { isStreamLate_ = false; }, Qt::QueuedConnection);
}

void WindowPointer::noteMouse(const QWindow& window, QPointF local) {
  const Stream stream = stream_();
  const ScreenPoint at{static_cast<std::int32_t>(std::floor(local.x() * stream.scale)),
                       static_cast<std::int32_t>(std::floor(local.y() * stream.scale))};
  merge_.moved(reinterpret_cast<std::uintptr_t>(&window), at, stream.pointer, PointerMerge::Clock::now());
}

}  // namespace tavrelkin
