#include "runtime/toolkit/widgets/TextLabel.h"

#include <algorithm>

#include <QAccessible>
#include <QFontMetrics>
#include <QPainter>

#include "runtime/toolkit/accessibility/Accessibility.h"

namespace tavrelkin {

namespace {

Qt::Alignment toQt(TextAlignment where) {
  switch (where) {
    case TextAlignment::centred:
      return Qt::AlignHCenter;
    case TextAlignment::right:
      return Qt::AlignRight;
    default:
      return Qt::AlignLeft;
  }
}

}  // namespace

void TextLabel::setLines(const QString& lines) {
  if (lines == text_) return;
  text_ = lines;
  fit();
  update();
  if (!QAccessible::isActive()) return;
  announceAtRest(*this, [this] {
    QAccessibleEvent event(this, QAccessible::NameChanged);
    QAccessible::updateAccessibility(&event);
  });
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
  across_ = toQt(where);
  update();
}

void TextLabel::fit() {
  constexpr int narrowest = 66;
  QFont fitted = base_;
  const auto wanted = [&] { return QFontMetrics(fitted).size(0, text_).width(); };
  // Character widths are rounded, so the first stretch may still be too wide.
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
  const QStringList lines = text_.split(QLatin1Char('\n'));
  const int pitch = lines.size() == 1 ? height() : qRound(1.2 * base_.pixelSize());
  int top = 0;
  for (const QString& line : lines) {
    const QRect place(0, top, width(), pitch);
    painter.drawText(place, static_cast<int>(across_) | Qt::AlignVCenter | Qt::TextDontClip, line);
    top += pitch;
  }
}

}  // namespace tavrelkin
