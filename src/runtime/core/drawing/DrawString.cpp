#include <utility>

#include <QFontMetrics>
#include <QImage>
#include <QPainter>

#include "runtime/core/drawing/DrawnText.h"
#include "runtime/core/drawing/Graphics.h"
#include "runtime/toolkit/widgets/Convert.h"
#include "runtime/toolkit/widgets/Fonts.h"

namespace tavrelkin {

namespace {

// What a text may change, with a rim for what smoothing adds.
Block placeOf(const QPainter& painter, const QString& text, Int32 x, Int32 y, const QRect& surface) {
  constexpr int rim = 2;
  const QRectF ink = painter.fontMetrics().boundingRect(text).adjusted(-rim, -rim, rim, rim);
  const QRect place = (ink.translated(x, y) & QRectF(surface)).toAlignedRect();
  return {place.x(), place.y(), place.width(), place.height()};
}

}  // namespace

Int32 Graphics::TextAscent() const {
  return QFontMetrics(fontFor("System", TextSize, false)).ascent();
}

// Text is the one thing that the toolkit draws on our surfaces.
void Graphics::DrawString(const String& text, Int32 x, Int32 y) {
  if (Width() == 0 || Height() == 0) return;
  touch();
  QImage image(reinterpret_cast<uchar*>(surface_.row(0)), Width(), Height(),
               static_cast<qsizetype>(sizeof(std::uint32_t)) * Width(), QImage::Format_RGB32);
  QPainter painter(&image);
  painter.setFont(fontFor("System", TextSize, false));
  painter.setPen(toQt(ForeColor));
  const QString shown = toQt(text);
  if (!observer_) return painter.drawText(x, y, shown);

  DrawnText record{.text = text, .left = x, .baseline = y, .size = TextSize, .color = ForeColor};
  record.place = placeOf(painter, shown, x, y, image.rect());
  if (record.place.isEmpty()) return;
  record.ground = pixelsOf(surface_, record.place);
  painter.drawText(x, y, shown);
  record.drawn = pixelsOf(surface_, record.place);
  observer_->textDrawn(std::move(record));
}

}  // namespace tavrelkin
