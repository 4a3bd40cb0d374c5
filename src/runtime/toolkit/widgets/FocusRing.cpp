#include "runtime/toolkit/widgets/FocusRing.h"

#include <QApplication>
#include <QPainter>

#include "runtime/toolkit/widgets/CanvasWidget.h"

namespace tavrelkin {

FocusRing::FocusRing(QWidget& content) : QFocusFrame(&content), content_(content) {
  hide();
  connect(qApp, &QApplication::focusChanged, this, [this](QWidget*, QWidget* focus) { follow(focus); });
}

void FocusRing::follow(QWidget* focus) {
  const bool isMine = focus && focus->window() == content_.window();
  setWidget(isMine ? dynamic_cast<CanvasWidget*>(focus) : nullptr);
}

void FocusRing::paintEvent(QPaintEvent*) {
  constexpr qreal thickness = 2;
  constexpr qreal corner = 2;
  QPainter painter(this);
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(QPen(palette().color(QPalette::Highlight), thickness));
  const qreal half = thickness / 2;
  painter.drawRoundedRect(QRectF(rect()).adjusted(half, half, -half, -half), corner, corner);
}

}  // namespace tavrelkin
