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

  // Called when the canvas is destroyed. Later events of the toolkit are ignored.
  void detach();

  // The canvas, or null after detach().
  Canvas* canvas() const { return canvas_; }

  // Show the surface on the screen: from the event loop, or at once. Unchanged rows are not painted.
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
  // Copies the changed rows of the canvas's surface. Returns the part of the widget to repaint.
  QRect takeChanges();
  void paintEnlarged(QPainter& painter, const Enlargement& enlargement);
  // Sets whether the window skips painting below the canvas. It must paint there at a fractional scale, where Qt may
  // leave gaps between two widgets.
  void setOpaque(bool opaque);
  // Raises MouseDrag or MouseMove for the last movement.
  void tellMovement();
  // Starts to raise that event again with each change of the screen: while the button is held, else for a moment.
  void followScreen();
  void followScreenNoMore();
  // The canvas's pixel under the pointer. Negative to the left of the canvas and above it.
  QPoint pixelUnder(const QMouseEvent& event) const;

  Canvas* canvas_;
  QPoint movedTo_;  // the canvas's pixel under the pointer after the last movement
  bool movedWithoutButton_ = false;
  bool granted_ = false;           // the canvas has accepted the press that is held now
  Surface surface_{0, 0, kWhite};  // the canvas's surface when it was last shown
  QImage enlarged_;                // the surface at the screen's scale; null until it is needed
  qreal enlargedBy_ = 1;
  bool showPosted_ = false;
  std::optional<ScreenWatch> watch_;  // set while events are raised again
  QTimer restingPointer_;
};

}  // namespace tavrelkin
