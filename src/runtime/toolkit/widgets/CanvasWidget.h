#pragma once

#include <optional>

#include <QImage>
#include <QTimer>
#include <QWidget>

#include "runtime/core/drawing/Surface.h"
#include "runtime/core/scheduling/ScreenWatch.h"

namespace tavrelkin {

class Canvas;
class Enlargement;

// Shows a canvas's surface and passes the toolkit's events on to the canvas.
class CanvasWidget : public QWidget {
 public:
  explicit CanvasWidget(Canvas& canvas);

  // The canvas goes; what still comes from the toolkit is ignored.
  void detach();

  // The canvas, or null when it is gone.
  Canvas* canvas() const { return canvas_; }

  // Has the surface on the screen when the event loop comes round to it, or at once. What looks the same as before
  // costs no painting.
  void showSoon();
  void showNow();

 protected:
  void showEvent(QShowEvent* event) override;
  void hideEvent(QHideEvent* event) override;
  void paintEvent(QPaintEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;
  void enterEvent(QEnterEvent* event) override;
  void leaveEvent(QEvent* event) override;
  void dragEnterEvent(QDragEnterEvent* event) override;
  void dropEvent(QDropEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;

 private:
  // Updates the picture that is shown; gives the part that has to be painted.
  QRect takeChanges();
  void paintEnlarged(QPainter& painter, const Enlargement& enlargement);
  // Whether the window need not paint beneath. It must at a scale that is no whole number, where the toolkit may leave
  // out pixels between two widgets.
  void setOpaque(bool opaque);
  // Raises the MouseDrag or MouseMove of the last movement.
  void tellMovement();
  // Has it raised again with each change of the screen, while the button is held or for a moment.
  void followScreen();
  void followScreenNoMore();
  // The pixel of the canvas that shows under the pointer, also left of and above it.
  QPoint pixelUnder(const QMouseEvent& event) const;

  Canvas* canvas_;
  QPoint movedTo_;  // the canvas's pixel that the last movement led to
  bool movedWithoutButton_ = false;
  bool granted_ = false;           // the press now held was accepted by the canvas
  Surface surface_{0, 0, kWhite};  // as it was last shown
  QImage enlarged_;                // for the screen it is on; none where that takes no enlargement, or not made yet
  qreal enlargedBy_ = 1;
  bool showPosted_ = false;
  std::optional<ScreenWatch> watch_;  // while movements are raised again
  QTimer restingPointer_;
};

}  // namespace tavrelkin
