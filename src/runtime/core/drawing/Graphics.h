#pragma once

#include "runtime/core/drawing/Color.h"
#include "runtime/core/drawing/Surface.h"
#include "runtime/core/text/Text.h"

namespace tavrelkin {

class Picture;
struct DrawnText;

// Learns of each drawing before it changes the surface.
class DrawingObserver {
 public:
  // Anything but a text is about to be drawn.
  virtual void willDraw() = 0;
  virtual void willDrawText(const DrawnText& text) = 0;

 protected:
  ~DrawingObserver() = default;
};

// Draws on the surface of a picture or a canvas, pixel by pixel exact and without smoothing. Coordinates count from the
// top left corner; whatever lies off the surface is clipped, at any coordinates.
class Graphics {
 public:
  // A size of DrawPicture that stands for the picture's own.
  static constexpr Int32 kNaturalSize = -10000;

  // Draws on `surface`, which must outlive the graphics, and tells `observer`, if there is one, before each drawing.
  explicit Graphics(Surface& surface, DrawingObserver* observer = nullptr) : surface_(surface), observer_(observer) {}
  Graphics(const Graphics&) = delete;
  Graphics& operator=(const Graphics&) = delete;

  // What the drawing operations draw with. Black at first.
  Color ForeColor;

  // Asks that an enlargement stay hard-edged. It does in any case: every scaling here is.
  bool UseOldRenderer = false;

  // The height of texts in pixels. They are set in the desktop's own family.
  Int32 TextSize = 11;

  // How far texts of that size reach above their baseline.
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

  // A filled rectangle. A width or height below 1 draws nothing.
  void FillRect(Int32 left, Int32 top, Int32 width, Int32 height);

  // The outline of a rectangle, one pixel wide and inside of it.
  void DrawRect(Int32 left, Int32 top, Int32 width, Int32 height);

  // A line one pixel wide, both ends included.
  void DrawLine(Int32 x1, Int32 y1, Int32 x2, Int32 y2);

  // Draws a text of one line that begins at x, with its baseline at y. Where a canvas is shown enlarged, its texts are
  // sharp until anything else is drawn on it; so draw them last.
  void DrawString(const String& text, Int32 x, Int32 y);

  // Draws a picture at its natural size, where its mask lets it.
  void DrawPicture(const Picture& picture, Int32 x, Int32 y);

  // Scales the source rectangle of a picture to a destination rectangle, each source pixel to a hard-edged block. Where
  // the source rectangle reaches over the picture's edge, what exists is drawn at the same place and scale as if the
  // picture went on, and the rest is left as it was. kNaturalSize may stand for any of the four sizes.
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
