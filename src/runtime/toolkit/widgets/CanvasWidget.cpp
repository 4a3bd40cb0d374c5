#include "runtime/toolkit/widgets/CanvasWidget.h"

#include <chrono>
#include <cstring>
#include <utility>

#include <QDropEvent>
#include <QKeyEvent>
#include <QMetaObject>
#include <QMouseEvent>
#include <QPainter>

#include "runtime/core/scheduling/Delivery.h"
#include "runtime/desktop/Desktop.h"
#include "runtime/toolkit/Canvas.h"
#include "runtime/toolkit/Window.h"
#include "runtime/toolkit/widgets/Drags.h"
#include "runtime/toolkit/widgets/Enlargement.h"

namespace tavrelkin {

namespace {

String asOneByte(const QKeyEvent& event) {
  switch (event.key()) {
    case Qt::Key_Left:
      return String(kLeftArrow);
    case Qt::Key_Right:
      return String(kRightArrow);
    case Qt::Key_Up:
      return String(kUpArrow);
    case Qt::Key_Down:
      return String(kDownArrow);
    case Qt::Key_Tab:
    case Qt::Key_Backtab:
      return {};
    default:
      // A key with the command key is a command, handled or not. Its text can be a control character that is equal to
      // an arrow's.
      if (event.modifiers() & (Qt::ControlModifier | Qt::MetaModifier)) return {};
      return event.text().toUtf8().left(1).toStdString();
  }
}

// A drop is always a copy; the source of the drag must not remove its data.
void takeCopy(QDropEvent& event) {
  event.setDropAction(Qt::CopyAction);
  event.accept();
}

}  // namespace

CanvasWidget::CanvasWidget(Canvas& canvas) : canvas_(&canvas) {
  setAttribute(Qt::WA_OpaquePaintEvent);
  setMouseTracking(true);
  restingPointer_.setSingleShot(true);
  restingPointer_.callOnTimeout(this, &CanvasWidget::followScreenNoMore);
}

void CanvasWidget::detach() {
  canvas_ = nullptr;
  followScreenNoMore();
}

void CanvasWidget::showSoon() {
  if (std::exchange(showPosted_, true)) return;
  const auto show = [this] {
    showPosted_ = false;
    if (const QRect changed = takeChanges(); !changed.isEmpty()) update(changed);
  };
  QMetaObject::invokeMethod(this, show, Qt::QueuedConnection);
}

void CanvasWidget::showNow() {
  if (const QRect changed = takeChanges(); !changed.isEmpty()) repaint(changed);
}

QRect CanvasWidget::takeChanges() {
  if (!canvas_) return {};
  const Surface& surface = canvas_->surface_;
  const int width = surface.width();
  const int height = surface.height();
  const bool isNew = surface_.width() != width || surface_.height() != height;
  if (isNew) surface_ = Surface(width, height, kWhite);
  const std::size_t bytes = static_cast<std::size_t>(width) * sizeof(std::uint32_t);
  const auto changed = [&](int y) { return isNew || std::memcmp(surface_.row(y), surface.row(y), bytes) != 0; };
  int first = 0;
  int end = height;
  while (first < end && !changed(first))
    ++first;
  while (first < end && !changed(end - 1))
    --end;
  for (int y = first; y < end; ++y)
    std::memcpy(surface_.row(y), surface.row(y), bytes);
  if (first == end) return {};
  enlarged_ = {};
  // At other scales Qt rounds the edges of a part differently, and a sharp text may change outside of the changed rows.
  return devicePixelRatioF() == 1 ? QRect(0, first, width, end - first) : rect();
}

void CanvasWidget::showEvent(QShowEvent*) {
  if (!canvas_) return;
  canvas_->shown_ = true;
  canvas_->paintAfresh();
  takeChanges();
}

void CanvasWidget::hideEvent(QHideEvent*) {
  followScreenNoMore();
  if (canvas_) canvas_->shown_ = false;
}

void CanvasWidget::paintEvent(QPaintEvent* event) {
  QPainter painter(this);
  const Enlargement enlargement(painter.deviceTransform().m11());
  setOpaque(enlargement.isWhole());
  if (enlargement.scale() != 1) return paintEnlarged(painter, enlargement);
  const QImage picture(reinterpret_cast<const uchar*>(std::as_const(surface_).row(0)), surface_.width(),
                       surface_.height(), QImage::Format_RGB32);
  painter.drawImage(event->rect(), picture, event->rect());
}

void CanvasWidget::paintEnlarged(QPainter& painter, const Enlargement& enlargement) {
  if (enlarged_.isNull() || enlargedBy_ != enlargement.scale()) {
    const bool hasTexts = canvas_ && !canvas_->texts_.empty();
    enlarged_ = hasTexts ? enlargement.of(canvas_->ground_, canvas_->texts_) : enlargement.of(surface_);
    enlargedBy_ = enlargement.scale();
  }
  // Draws without the painter's scaling, which would put edges between two pixels of the screen.
  const QTransform toScreen = painter.deviceTransform();
  const QTransform toCorner = QTransform::fromTranslate(qRound(toScreen.dx()), qRound(toScreen.dy()));
  painter.setWorldTransform(toCorner * toScreen.inverted());
  painter.drawImage(0, 0, enlarged_);
}

void CanvasWidget::setOpaque(bool opaque) {
  if (testAttribute(Qt::WA_OpaquePaintEvent) == opaque) return;
  setAttribute(Qt::WA_OpaquePaintEvent, opaque);
  parentWidget()->update(geometry().adjusted(-1, -1, 1, 1));
}

QPoint CanvasWidget::pixelUnder(const QMouseEvent& event) const {
  constexpr qreal slack = 1.0 / 64;  // for rounding errors of the position
  const Enlargement enlargement(devicePixelRatioF());
  const auto pixel = [&](qreal position, int corner) {
    const int onScreen = qFloor((position + corner) * enlargement.scale() + slack);
    return enlargement.pixelAt(onScreen - enlargement.edge(corner));
  };
  const QPoint corner = mapTo(window(), QPoint());
  return {pixel(event.position().x(), corner.x()), pixel(event.position().y(), corner.y())};
}

void CanvasWidget::mousePressEvent(QMouseEvent* event) {
  if (!canvas_ || !canvas_->Enabled || event->button() != Qt::LeftButton) return event->ignore();
  const QPoint at = pixelUnder(*event);
  granted_ = deliver(canvas_->ownerWindow(), [&] { return canvas_->Event_MouseDown(at.x(), at.y()); });
}

void CanvasWidget::mouseMoveEvent(QMouseEvent* event) {
  if (!canvas_) return;
  // After a drag-and-drop out of the canvas no release comes.
  if (!(event->buttons() & Qt::LeftButton)) granted_ = false;
  movedTo_ = pixelUnder(*event);
  movedWithoutButton_ = event->buttons() == Qt::NoButton;
  followScreen();
  tellMovement();
}

void CanvasWidget::tellMovement() {
  deliver(canvas_->ownerWindow(), [this] {
    if (granted_) {
      canvas_->Event_MouseDrag(movedTo_.x(), movedTo_.y());
    } else if (movedWithoutButton_ && canvas_->Enabled) {
      canvas_->Event_MouseMove(movedTo_.x(), movedTo_.y());
    }
  });
}

void CanvasWidget::followScreen() {
  constexpr std::chrono::milliseconds settled(200);
  if (!canvas_->FollowsScreen || !desktop().screenReader().tellsEachChange()) return;
  if (!watch_) watch_.emplace([this] { tellMovement(); });
  restingPointer_.stop();
  if (movedWithoutButton_) restingPointer_.start(settled);
}

void CanvasWidget::followScreenNoMore() {
  restingPointer_.stop();
  watch_.reset();
}

void CanvasWidget::mouseReleaseEvent(QMouseEvent* event) {
  followScreenNoMore();
  if (!canvas_ || event->button() != Qt::LeftButton || !std::exchange(granted_, false)) return;
  const QPoint at = pixelUnder(*event);
  deliver(canvas_->ownerWindow(), [&] { canvas_->Event_MouseUp(at.x(), at.y()); });
}

void CanvasWidget::enterEvent(QEnterEvent*) {
  if (canvas_) deliver(canvas_->ownerWindow(), [&] { canvas_->Event_MouseEnter(); });
}

void CanvasWidget::leaveEvent(QEvent*) {
  followScreenNoMore();
  if (canvas_) deliver(canvas_->ownerWindow(), [&] { canvas_->Event_MouseExit(); });
}

void CanvasWidget::dragEnterEvent(QDragEnterEvent* event) {
  if (canvas_ && canvas_->accepts(*offeredBy(*event->mimeData()))) takeCopy(*event);
}

void CanvasWidget::dropEvent(QDropEvent* event) {
  if (!canvas_) return;
  takeCopy(*event);
  const Ref<DragItem> item = fromDrop(*event);
  // The source may have offered a type and not have sent its data.
  if (canvas_->accepts(*item)) deliver(canvas_->ownerWindow(), [&] { canvas_->Event_DropObject(item, 0); });
}

void CanvasWidget::keyPressEvent(QKeyEvent* event) {
  const String key = asOneByte(*event);
  if (!canvas_ || !canvas_->Enabled || key.empty()) return event->ignore();
  // A held key presses once.
  if (event->isAutoRepeat() && isPressKey(key)) return;
  event->setAccepted(deliver(canvas_->ownerWindow(), [&] { return canvas_->Event_KeyDown(key); }));
}

}  // namespace tavrelkin
