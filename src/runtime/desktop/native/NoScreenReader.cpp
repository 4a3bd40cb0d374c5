#include "runtime/desktop/native/NoScreenReader.h"

#include <cassert>
#include <utility>

#include <QCursor>
#include <QGuiApplication>

namespace tavrelkin {

NoScreenReader::NoScreenReader(std::string why) : why_(std::move(why)) {
  assert(!why_.empty());
}

std::uint32_t NoScreenReader::pixel(ScreenPoint at) {
  constexpr std::int32_t kSquare = 8;
  const bool isDark = ((at.x ^ at.y) & kSquare) != 0;
  return isDark ? 0x999999 : 0xCCCCCC;
}

ScreenPoint NoScreenReader::pointer() {
  const QPoint position = QCursor::pos();
  return {position.x(), position.y()};
}

bool NoScreenReader::optionKey() {
  return QGuiApplication::queryKeyboardModifiers().testFlag(Qt::AltModifier);
}

}  // namespace tavrelkin
