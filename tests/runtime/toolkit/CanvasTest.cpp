#include <array>
#include <cmath>
#include <functional>
#include <string>

#include <QCoreApplication>
#include <QDropEvent>
#include <QImage>
#include <QMimeData>
#include <QWidget>

#include "fakes/Gestures.h"
#include "fakes/RuntimeTest.h"
#include "runtime/core/drawing/Picture.h"
#include "runtime/toolkit/Canvas.h"

namespace tavrelkin {
namespace {

constexpr Color kGround{0xABCDEF};

class Host : public Window {
 public:
  Host() : Window({.title = "Host", .width = 100, .height = 100}) {
    BackColor = kGround;
    canvas.place(10, 10, 60, 20);
    canvas.Paint = [this](Graphics* g) {
      ++paints;
      below = {g->Pixel(1, 19), g->Pixel(3, 19), g->Pixel(5, 19)};
    };
    canvas.MouseDown = [this](Int32 x, Int32 y) {
      note("down", x, y);
      return takes;
    };
    canvas.MouseDrag = [this](Int32 x, Int32 y) { note("drag", x, y); };
    canvas.MouseUp = [this](Int32 x, Int32 y) { note("up", x, y); };
    canvas.MouseMove = [this](Int32 x, Int32 y) { note("move", x, y); };
    canvas.DropObject = [this](const Ref<DragItem>& item, Int32) { log += "drop " + item->Text() + " "; };
    canvas.KeyDown = [this](const String& key) {
      log += Str(AscB(key)) + " ";
      return false;
    };
  }
  void note(const String& what, Int32 x, Int32 y) { log += what + " " + Str(x) + "," + Str(y) + " "; }

  Canvas canvas{*this, "canvas"};
  bool takes = true;
  int paints = 0;
  std::array<Color, 3> below;  // the pixels before Paint
  String log;
};

class CanvasTest : public RuntimeTest {
 protected:
  // Drops a text on the canvas. Returns the log, and whether the text was copied.
  String drop(Qt::DropActions offered, Qt::KeyboardModifiers held) const {
    window->log.clear();
    QMimeData data;
    data.setText("#FF8000");
    QDragEnterEvent enter(QPoint(2, 2), offered, &data, Qt::LeftButton, held);
    QCoreApplication::sendEvent(&window->canvas.native(), &enter);
    QDropEvent drop(QPointF(2, 2), offered, &data, Qt::LeftButton, held);
    if (enter.isAccepted()) QCoreApplication::sendEvent(&window->canvas.native(), &drop);
    return window->log + (drop.isAccepted() && drop.dropAction() == Qt::CopyAction ? "copied" : "not copied");
  }

  // The number of screen pixels that differ from `expected` of the canvas pixel that they belong to.
  int pixelsOtherThan(const std::function<Color(Int32 x, Int32 y)>& expected, double scale) const {
    processEvents();
    const int width = qRound(60 * scale);
    const int height = qRound(20 * scale);
    QImage shown(width, height, QImage::Format_RGB32);
    shown.setDevicePixelRatio(scale);
    window->canvas.native().render(&shown);
    const auto pixelAt = [scale](int onScreen) { return static_cast<Int32>(std::ceil((onScreen + 0.5) / scale)) - 1; };
    int count = 0;
    for (int i = 0; i < width * height; ++i)
      count += Color{shown.pixel(i % width, i / width)} != expected(pixelAt(i % width), pixelAt(i / width));
    return count;
  }
  int strayPixels(double scale) const {
    return pixelsOtherThan([this](Int32 x, Int32 y) { return window->canvas.Graphics().Pixel(x, y); }, scale);
  }
  int inkedPixels(double scale) const {
    return pixelsOtherThan([](Int32, Int32) { return kGround; }, scale);
  }

  const Ref<Host> window = New<Host>();
};

TEST_F(CanvasTest, PaintComesWithItsReasonsOnlyAndFindsTheBackdropOnTheGround) {
  // Its left half is black, its right half transparent.
  const Ref<Picture> backdrop = NewPicture(4, 40, 32);
  backdrop->Graphics().FillRect(0, 0, 4, 40);
  backdrop->Mask(true)->Graphics().FillRect(0, 0, 2, 40);
  window->canvas.Backdrop = backdrop;
  EXPECT_EQ(window->paints, 0) << "it comes along when the canvas first shows";
  const struct {
    const char* reason;
    std::function<void(Canvas&)> act;
    int paints;
  } rows[] = {
      {"first shown", [this](Canvas&) { window->Show(); }, 1},
      {"the toolkit wants pixels", [](Canvas& c) { c.native().repaint(); }, 0},
      {"refreshed", [](Canvas& c) { c.Refresh(true); }, 1},
      {"hidden", [](Canvas& c) { c.Visible = false; }, 0},
      {"refreshed while hidden", [](Canvas& c) { c.Refresh(false); }, 1},
      {"resized while hidden", [](Canvas& c) { c.Width = 30; }, 0},
      {"shown", [](Canvas& c) { c.Visible = true; }, 1},
      {"resized", [](Canvas& c) { c.Width = 60; }, 1},
      {"disabled", [](Canvas& c) { c.Enabled = false; }, 1},
      {"no backdrop", [](Canvas& c) { c.Backdrop = nullptr; }, 1},
  };
  for (const auto& [reason, act, paints] : rows) {
    window->paints = 0;
    window->canvas.Graphics().Pixel(5, 19, kWhite);
    act(window->canvas);
    processEvents();
    EXPECT_EQ(window->paints, paints) << reason;
    const Color left = window->canvas.Backdrop.get() ? kBlack : kGround;
    EXPECT_EQ(window->below, (std::array{left, kGround, kGround})) << reason;
  }
}

TEST_F(CanvasTest, OnlyAPressThatIsTakenGrantsDragAndReleaseUntilTheButtonIsUp) {
  window->Show();
  const Canvas& canvas = window->canvas;
  for (const bool takes : {true, false}) {
    window->takes = takes;
    gesture::press(canvas, 3, 4);
    gesture::dragTo(canvas, -5, 200);
    gesture::release(canvas, -5, 200);
    gesture::press(canvas, 1, 1);
    gesture::hover(canvas, 2, 2);  // the release went elsewhere, for example to a dialog
    gesture::release(canvas, 2, 2);
  }
  EXPECT_EQ(window->log, "down 3,4 drag -5,200 up -5,200 down 1,1 move 2,2 down 3,4 down 1,1 move 2,2 ");
}

TEST_F(CanvasTest, KeysComeAsOneByteUnlessTheyAreCommandsOrTheTabulator) {
  window->Show();
  window->canvas.SetFocus();
  gesture::shortcut(window->canvas, "Cmd+]");
  for (const int key :
       {Qt::Key_Left, Qt::Key_Right, Qt::Key_Up, Qt::Key_Down, Qt::Key_A, Qt::Key_Shift, Qt::Key_Tab, Qt::Key_Backtab})
    gesture::key(window->canvas, key);
  EXPECT_EQ(window->log, "28 29 30 31 97 ");
}

TEST_F(CanvasTest, ADropIsCopiedAndNeverMovedAndAllThatADisabledCanvasTakes) {
  window->Show();
  EXPECT_EQ(drop(Qt::CopyAction, Qt::NoModifier), "not copied");
  window->canvas.AcceptTextDrop();
  window->canvas.SetFocus();
  window->canvas.Enabled = false;
  EXPECT_FALSE(gesture::hasKeyboard(window->canvas));
  gesture::hover(window->canvas, 1, 1);
  gesture::click(window->canvas, 1, 1);
  gesture::key(window->canvas, Qt::Key_A);
  EXPECT_EQ(window->log, "");
  EXPECT_EQ(drop(Qt::CopyAction | Qt::MoveAction, Qt::ShiftModifier), "drop #FF8000 copied");
}

// The screen has more pixels than the canvas.
TEST_F(CanvasTest, ATextIsFinerThanThePixelsUntilItIsDrawnOver) {
  window->canvas.Paint = [](Graphics* g) {
    g->DrawRect(0, 0, 60, 20);
    g->DrawString("#70ABFF", 5, 14);
  };
  window->Show();
  EXPECT_EQ(strayPixels(1), 0);
  for (const double scale : {1.25, 1.5, 2.0}) {
    window->canvas.Refresh(false);
    EXPECT_GT(strayPixels(scale), 20) << scale;
    window->canvas.Graphics().DrawLine(0, 10, 59, 10);
    EXPECT_EQ(strayPixels(scale), 0) << scale;
  }
  window->canvas.Refresh(false);
  window->canvas.Graphics().DrawString("100.100.100", 5, 14);
  EXPECT_GT(strayPixels(2), 20) << "the text on top";
  window->canvas.Width = 8;
  window->canvas.Width = 60;
  window->canvas.Paint = nullptr;
  window->canvas.Refresh(false);
  EXPECT_EQ(strayPixels(2), 0) << "nothing of it is left";
  window->canvas.Graphics().DrawString("#70ABFF", 5, 14);
  EXPECT_LT(inkedPixels(2), 4 * inkedPixels(1)) << "the coarse text shows behind the fine one";
}

}  // namespace
}  // namespace tavrelkin
