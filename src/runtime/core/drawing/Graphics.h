#pragma once

#include "runtime/core/drawing/Color.h"
#include "runtime/core/drawing/Surface.h"
#include "runtime/core/text/Text.h"

namespace tavrelkin {

class Picture;
struct DrawnText;

// Is called before each drawing operation changes the surface.
class DrawingObserver {
 public:
  // Something other than a text is about to be drawn.
  virtual void willDraw() = 0;
  virtual void willDrawText(const DrawnText& text) = 0;

 protected:
  ~DrawingObserver() = default;
};

// Draws on the surface of a picture or a canvas. Everything except texts is drawn without anti-aliasing. Coordinates
// are in pixels from the top left corner. Drawing is clipped to the surface; any coordinates are allowed.
class Graphics {
 public:
  // As a size for DrawPicture: the width or height of the picture itself.
  static constexpr Int32 kNaturalSize = -10000;

  // Draws on `surface`, which must outlive the graphics. Calls `observer` before each drawing operation, unless it is
  // null.
  explicit Graphics(Surface& surface, DrawingObserver* observer = nullptr) : surface_(surface), observer_(observer) {}
  Graphics(const Graphics&) = delete;
  Graphics& operator=(const Graphics&) = delete;

  // The colour of shapes and texts. Black at first.
  Color ForeColor;

  // Requests enlargements with hard edges. Has no effect: all enlargements have hard edges.
  bool UseOldRenderer = false;

  // The height of texts in pixels. Their font family is the desktop's own.
  Int32 TextSize = 11;

  // How many pixels texts of that size reach above their baseline.
  Int32 TextAscent() const;

  Int32 Width() const { return surface_.width(); }
  Int32 Height() const { return surface_.height(); }

  // The pixel at (x, y); black off the surface.
  Color Pixel(Int32 x, Int32 y) const { return surface_.contains(x, y) ? Color{surface_.row(y)[x]} : kBlack; }
  void Pixel(Int32 x, Int32 y, Color c) {
    if (!surface_.contains(x, y)) return;
    touch();
    surface_.row(y)[x] = Surface::kOpaque | c.bits;
  }

  // Fills a rectangle. A width or height below 1 draws nothing.
  void FillRect(Int32 left, Int32 top, Int32 width, Int32 height);

  // Draws the outline of a rectangle, one pixel wide, inside the rectangle. A width or height below 1 draws nothing.
  void DrawRect(Int32 left, Int32 top, Int32 width, Int32 height);

  // Draws a line one pixel wide, both ends included.
  void DrawLine(Int32 x1, Int32 y1, Int32 x2, Int32 y2);

  // Draws a text of one line that begins at x, with its baseline at y. On an enlarged canvas, texts are sharp until
  // something else is drawn on the canvas, so draw texts last.
  void DrawString(const String& text, Int32 x, Int32 y);

  // Draws a picture at its own size, through its mask.
  void DrawPicture(const Picture& picture, Int32 x, Int32 y);

  // Scales the source rectangle of a picture to the destination rectangle and draws it through the picture's mask. Each
  // source pixel becomes a hard-edged block. The part of the source rectangle that lies off the picture draws nothing;
  // the place and scale of the rest stay the same. kNaturalSize may be given for any of the four sizes; any other size
  // below 1 draws nothing.
  void DrawPicture(const Picture& picture, Int32 x, Int32 y, Int32 destinationWidth, Int32 destinationHeight,
                   Int32 sourceX, Int32 sourceY, Int32 sourceWidth, Int32 sourceHeight);

 private:
  void drawStraight(Int32 left, Int32 top, Int32 right, Int32 bottom);

  void touch() {
    if (observer_) observer_->willDraw();
  }

  Surface& surface_;
  DrawingObserver* observer_;
};

}  // namespace tavrelkin
