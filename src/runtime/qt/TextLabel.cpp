#include "runtime/qt/TextLabel.h"

#include <algorithm>

#include <QFontMetrics>
#include <QPainter>

namespace tavrelkin {

TextLabel::TextLabel() {
  setTextFormat(Qt::PlainText);
}

void TextLabel::setLines(const QString& lines) {
  if (lines == text()) return;
  setText(lines);
  fit();
}

void TextLabel::setBaseFont(const QFont& font) {
  base_ = font;
  fit();
}

void TextLabel::setTextColor(const QColor& c) {
  QPalette colors = palette();
  colors.setColor(QPalette::WindowText, c);
  setPalette(colors);
}

void TextLabel::align(TextAlignment where) {
  const Qt::Alignment across = where == TextAlignment::left      ? Qt::AlignLeft
                               : where == TextAlignment::centred ? Qt::AlignHCenter
                                                                 : Qt::AlignRight;
  setAlignment(across | Qt::AlignTop);
}

void TextLabel::fit() {
  constexpr int narrowest = 66;
  QFont fitted = base_;
  const auto wanted = [&] { return QFontMetrics(fitted).size(0, text()).width(); };
  // Each character's width is rounded, so that the first stretch may not be narrow enough.
  int stretch = 100;
  for (int needs = wanted(); needs > width() && width() > 0 && stretch > narrowest; needs = wanted()) {
    stretch = std::max(narrowest, std::min(stretch - 1, stretch * width() / needs));
    fitted.setStretch(stretch);
  }
  if (fitted != font()) setFont(fitted);
}

void TextLabel::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  painter.setPen(palette().color(isEnabled() ? QPalette::Normal : QPalette::Disabled, QPalette::WindowText));
  const QStringList lines = text().split(QLatin1Char('\n'));
  const Qt::Alignment across = alignment() & Qt::AlignHorizontal_Mask;
  const int pitch = lines.size() == 1 ? height() : qRound(1.2 * base_.pixelSize());
  int top = 0;
  for (const QString& line : lines) {
    const QRect place(0, top, width(), pitch);
    painter.drawText(place, static_cast<int>(across) | Qt::AlignVCenter | Qt::TextDontClip, line);
    top += pitch;
  }
}

}  // namespace tavrelkin
