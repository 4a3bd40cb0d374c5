// The picture behind what a canvas draws.

#include "runtime/drawing/Picture.h"
#include "runtime/gui/Canvas.h"
#include "support/RuntimeTest.h"

namespace tavrelkin {
namespace {

constexpr Color kGround{0xABCDEF};
constexpr Color kInk{0x123456};

// A canvas of 4 by 3 pixels that draws a point at (0, 0).
class Host : public Window {
 public:
  Host() : Window({.title = "Host", .width = 100, .height = 100}) {
    BackColor = kGround;
    canvas.place(10, 10, 4, 3);
    canvas.Paint = [this](Graphics* g) {
      ++paints;
      g->Pixel(0, 0, kInk);
    };
  }
  Color at(Int32 x, Int32 y) { return canvas.Graphics().Pixel(x, y); }

  Canvas canvas{*this, "canvas"};
  int paints = 0;
};

Ref<Picture> plain(Int32 width, Int32 height, Color c) {
  Ref<Picture> picture = NewPicture(width, height, 32);
  picture->Graphics().ForeColor = c;
  picture->Graphics().FillRect(0, 0, width, height);
  return picture;
}

class BackdropTest : public RuntimeTest {
 protected:
  Ref<Host> window = New<Host>();
};

TEST_F(BackdropTest, LiesBehindTheDrawingAtItsNaturalSizeAndLetsTheGroundThroughItsMask) {
  const Ref<Picture> backdrop = plain(2, 9, Color{0xFF0000});
  Graphics& mask = backdrop->Mask(true)->Graphics();
  mask.FillRect(0, 0, 2, 9);
  mask.Pixel(1, 1, kWhite);
  window->canvas.Backdrop = backdrop;
  EXPECT_EQ(window->paints, 0) << "it comes along when the canvas first shows";
  window->Show();
  EXPECT_EQ(window->paints, 1);
  for (int round = 0; round < 3; ++round) {
    EXPECT_EQ(window->at(0, 0), kInk);
    EXPECT_EQ(window->at(1, 0), Color{0xFF0000});
    EXPECT_EQ(window->at(0, 2), Color{0xFF0000});
    EXPECT_EQ(window->at(1, 1), kGround);
    EXPECT_EQ(window->at(2, 0), kGround);
    window->canvas.Graphics().Pixel(0, 2, kBlack);
    if (round == 0) window->canvas.Refresh(true);
    if (round == 1) window->canvas.Width = 5;
  }
}

TEST_F(BackdropTest, IsShownAtOnceWhereItChangesAndGoesWithNil) {
  window->Show();
  for (const Color c : {kBlack, kWhite}) {
    window->canvas.Backdrop = plain(4, 3, c);
    EXPECT_EQ(window->at(3, 2), c);
    EXPECT_EQ(window->at(0, 0), kInk);
  }
  window->canvas.Backdrop = nullptr;
  EXPECT_EQ(window->at(3, 2), kGround);
  EXPECT_EQ(window->paints, 4);
}

}  // namespace
}  // namespace tavrelkin
