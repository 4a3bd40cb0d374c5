#include <QFontMetrics>
#include <QImage>
#include <QPainter>

#include "runtime/drawing/Graphics.h"
#include "runtime/qt/Convert.h"
#include "runtime/qt/Fonts.h"

namespace tavrelkin {

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
  painter.drawText(x, y, toQt(text));
}

}  // namespace tavrelkin
