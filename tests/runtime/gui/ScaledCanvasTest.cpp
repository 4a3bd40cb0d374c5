// A canvas on a screen with more pixels than it has itself.

#include <cmath>

#include <QImage>
#include <QWidget>

#include "runtime/gui/Canvas.h"
#include "support/RuntimeTest.h"

namespace tavrelkin {
namespace {

class Host : public Window {
 public:
  Host() : Window({.title = "Host", .width = 100, .height = 40}) {
    canvas.place(0, 0, 60, 20);
    canvas.Paint = [](Graphics* g) {
      g->ForeColor = kWhite;
      g->FillRect(0, 0, 60, 20);
      g->ForeColor = kBlack;
      g->DrawRect(0, 0, 60, 20);
      g->DrawString("#70ABFF", 5, 14);
    };
  }
  Canvas canvas{*this, "canvas"};
};

class ScaledCanvasTest : public RuntimeTest {
 protected:
  ScaledCanvasTest() { window->Show(); }

  // How many pixels of the screen show something else than the pixel of the canvas that they belong to.
  int strayPixels(double scale) {
    processEvents();
    const auto edge = [scale](int i) { return static_cast<int>(std::floor(i * scale + 0.5)); };
    QImage shown(edge(60), edge(20), QImage::Format_RGB32);
    shown.setDevicePixelRatio(scale);
    window->canvas.native().render(&shown);
    int count = 0;
    for (int y = 0; y < 20; ++y)
      for (int x = 0; x < 60; ++x)
        for (int row = edge(y); row < edge(y + 1); ++row)
          for (int column = edge(x); column < edge(x + 1); ++column)
            count += Color{shown.pixel(column, row)} != window->canvas.Graphics().Pixel(x, y);
    return count;
  }

  Ref<Host> window = New<Host>();
};

TEST_F(ScaledCanvasTest, ATextIsFinerThanThePixelsUntilItIsDrawnOver) {
  EXPECT_EQ(strayPixels(1), 0);
  for (const double scale : {1.25, 1.5, 2.0})
    EXPECT_GT(strayPixels(scale), 20) << scale;

  window->canvas.Graphics().DrawLine(0, 10, 59, 10);
  for (const double scale : {1.25, 1.5, 2.0})
    EXPECT_EQ(strayPixels(scale), 0) << scale;

  window->canvas.Refresh(false);
  EXPECT_GT(strayPixels(2), 20) << "drawn anew";
  window->canvas.Graphics().DrawString("100.100.100", 5, 14);
  EXPECT_GT(strayPixels(2), 20) << "the text on top";
  window->canvas.Width = 8;
  window->canvas.Width = 60;
  window->canvas.Paint = nullptr;
  window->canvas.Refresh(false);
  EXPECT_EQ(strayPixels(2), 0) << "nothing of it is left";
}

}  // namespace
}  // namespace tavrelkin
