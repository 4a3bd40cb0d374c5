#include "runtime/qt/CanvasWidget.h"

#include <utility>

#include <QImage>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>

#include "runtime/gui/Canvas.h"
#include "runtime/gui/Window.h"
#include "runtime/qt/Delivery.h"

namespace tavrelkin {

namespace {

String asOneByte(const QKeyEvent& event) {
  switch (event.key()) {
    case Qt::Key_Left:
      return ChrB(28);
    case Qt::Key_Right:
      return ChrB(29);
    case Qt::Key_Up:
      return ChrB(30);
    case Qt::Key_Down:
      return ChrB(31);
    default:
      return event.text().toUtf8().left(1).toStdString();
  }
}

// The pixel that a position lies in, also left of and above the widget.
QPoint pixelOf(const QMouseEvent& event) {
  return {qFloor(event.position().x()), qFloor(event.position().y())};
}

}  // namespace

CanvasWidget::CanvasWidget(Canvas& canvas) : canvas_(&canvas) {
  setAttribute(Qt::WA_OpaquePaintEvent);
  setMouseTracking(true);
}

void CanvasWidget::showNow() {
  dirty_ = true;
  repaint();
}

void CanvasWidget::showEvent(QShowEvent*) {
  if (!canvas_) return;
  canvas_->shown_ = true;
  canvas_->paintAfresh();
}

void CanvasWidget::hideEvent(QHideEvent*) {
  if (canvas_) canvas_->shown_ = false;
}

void CanvasWidget::paintEvent(QPaintEvent*) {
  dirty_ = false;
  if (!canvas_ || canvas_->surface_.width() == 0 || canvas_->surface_.height() == 0) return;
  const Surface& surface = canvas_->surface_;
  const QImage image(reinterpret_cast<const uchar*>(surface.row(0)), surface.width(), surface.height(),
                     surface.width() * static_cast<int>(sizeof(std::uint32_t)), QImage::Format_RGB32);
  QPainter(this).drawImage(0, 0, image);
}

void CanvasWidget::mousePressEvent(QMouseEvent* event) {
  if (!canvas_ || event->button() != Qt::LeftButton) return event->ignore();
  const QPoint at = pixelOf(*event);
  granted_ = deliver(canvas_->ownerWindow(), [&] { return canvas_->Event_MouseDown(at.x(), at.y()); });
}

void CanvasWidget::mouseMoveEvent(QMouseEvent* event) {
  if (!canvas_) return;
  const QPoint at = pixelOf(*event);
  deliver(canvas_->ownerWindow(), [&] {
    if (granted_) {
      canvas_->Event_MouseDrag(at.x(), at.y());
    } else if (event->buttons() == Qt::NoButton) {
      canvas_->Event_MouseMove(at.x(), at.y());
    }
  });
}

void CanvasWidget::mouseReleaseEvent(QMouseEvent* event) {
  if (!canvas_ || event->button() != Qt::LeftButton || !std::exchange(granted_, false)) return;
  const QPoint at = pixelOf(*event);
  deliver(canvas_->ownerWindow(), [&] { canvas_->Event_MouseUp(at.x(), at.y()); });
}

void CanvasWidget::enterEvent(QEnterEvent*) {
  if (canvas_) deliver(canvas_->ownerWindow(), [&] { canvas_->Event_MouseEnter(); });
}

void CanvasWidget::leaveEvent(QEvent*) {
  if (canvas_) deliver(canvas_->ownerWindow(), [&] { canvas_->Event_MouseExit(); });
}

void CanvasWidget::keyPressEvent(QKeyEvent* event) {
  if (!canvas_) return event->ignore();
  const String key = asOneByte(*event);
  event->setAccepted(deliver(canvas_->ownerWindow(), [&] { return canvas_->Event_KeyDown(key); }));
}

}  // namespace tavrelkin
