#include "runtime/toolkit/widgets/Fonts.h"

#include <algorithm>

#include <QApplication>
#include <QFontMetrics>
#include <QImage>
#include <QPainter>

#include "runtime/toolkit/widgets/Convert.h"

namespace tavrelkin {

QFont fontFor(const String& family, Int32 pixels, bool bold) {
  QFont font = QApplication::font();
  if (family != "System") font.setFamily(toQt(family));
  font.setPixelSize(std::max(pixels, 1));
  font.setBold(bold);
  return font;
}

Int32 FontPainter::ascent(Int32 size) const {
  return QFontMetrics(fontFor("System", size, false)).ascent();
}

void FontPainter::draw(const DrawnText& text, Surface& surface) const {
  QImage image(reinterpret_cast<uchar*>(surface.row(0)), surface.width(), surface.height(),
               static_cast<qsizetype>(sizeof(std::uint32_t)) * surface.width(), QImage::Format_RGB32);
  QPainter painter(&image);
  draw(text, painter);
}

void FontPainter::draw(const DrawnText& text, QPainter& painter) {
  painter.setFont(fontFor("System", text.size, false));
  painter.setPen(toQt(text.color));
  painter.drawText(text.left, text.baseline, toQt(text.text));
}

}  // namespace tavrelkin
