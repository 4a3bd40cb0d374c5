#include "runtime/toolkit/widgets/FontPainter.h"

#include <QFontMetrics>
#include <QImage>
#include <QPainter>

#include "runtime/toolkit/widgets/Convert.h"
#include "runtime/toolkit/widgets/Fonts.h"

namespace tavrelkin {

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
