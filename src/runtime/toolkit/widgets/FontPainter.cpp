#include "runtime/toolkit/widgets/FontPainter.h"

#include <QFontMetrics>
#include <QImage>
#include <QPainter>

#include "runtime/toolkit/widgets/Convert.h"
#include "runtime/toolkit/widgets/Fonts.h"

namespace tavrelkin {

namespace {

QFontMetrics metricsOf(Int32 size) {
  return QFontMetrics(fontFor("System", size, false));
}

}  // namespace

Int32 FontPainter::ascent(Int32 size) const {
  return metricsOf(size).ascent();
}

// With a rim for what smoothing adds.
Block FontPainter::placeOf(const DrawnText& text, const Surface& surface) const {
  constexpr int rim = 2;
  const QRectF ink = metricsOf(text.size).boundingRect(toQt(text.text)).adjusted(-rim, -rim, rim, rim);
  const QRectF whole(0, 0, surface.width(), surface.height());
  const QRect place = (ink.translated(text.left, text.baseline) & whole).toAlignedRect();
  return {place.x(), place.y(), place.width(), place.height()};
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
