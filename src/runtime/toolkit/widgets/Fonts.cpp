#include "runtime/toolkit/widgets/Fonts.h"

#include <algorithm>

#include <QApplication>

#include "runtime/toolkit/widgets/Convert.h"

namespace tavrelkin {

QFont fontFor(const String& family, Int32 pixels, bool bold) {
  QFont font = QApplication::font();
  if (family != "System") font.setFamily(toQt(family));
  font.setPixelSize(std::max(pixels, 1));
  font.setBold(bold);
  return font;
}

}  // namespace tavrelkin
