#include "runtime/desktop/native/NoScreenReader.h"

#include <utility>

#include <QCursor>
#include <QGuiApplication>
#include <QKeyEvent>

namespace tavrelkin {

std::uint32_t patternOfGreys(ScreenPoint at) {
  constexpr std::int32_t kSquare = 8;
  const bool isDark = ((at.x ^ at.y) & kSquare) != 0;
  return isDark ? 0x999999 : 0xCCCCCC;
}

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

NoScreenReader::NoScreenReader(std::function<void()> tellWhy) : tellWhy_(std::move(tellWhy)) {}

void NoScreenReader::request(const Picked&) {
  if (const auto tell = std::exchange(tellWhy_, nullptr)) tell();
}

std::uint32_t NoScreenReader::pixel(ScreenPoint at) {
  request({});
  return patternOfGreys(at);
}

ScreenPoint NoScreenReader::pointer() {
  const QPoint position = QCursor::pos();
  return {position.x(), position.y()};
}

}  // namespace tavrelkin
