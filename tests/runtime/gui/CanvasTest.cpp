#include <string>
#include <utility>
#include <vector>

#include <QCoreApplication>
#include <QDropEvent>
#include <QMimeData>
#include <QWidget>

#include "runtime/gui/Canvas.h"
#include "support/Gestures.h"
#include "support/RuntimeTest.h"

namespace tavrelkin {
namespace {

class Host : public Window {
 public:
  Host() : Window({.title = "Host", .width = 100, .height = 100}) {
    BackColor = Color{0xABCDEF};
    canvas.place(10, 10, 30, 20);
    canvas.Paint = [this](Graphics* g) {
      ++paints;
      ground = g->Pixel(5, 5);
    };
    canvas.MouseDown = [this](Int32 x, Int32 y) {
      note("down", x, y);
      return takes;
    };
    canvas.MouseDrag = [this](Int32 x, Int32 y) { note("drag", x, y); };
    canvas.MouseUp = [this](Int32 x, Int32 y) { note("up", x, y); };
    canvas.MouseMove = [this](Int32 x, Int32 y) { note("move", x, y); };
    canvas.DropObject = [this](const Ref<DragItem>& item, Int32) { log.push_back("drop " + item->Text()); };
    canvas.KeyDown = [this](const String& key) {
      log.push_back("key " + Str(AscB(key)));
      return false;
    };
  }
  void note(const char* what, Int32 x, Int32 y) {
    log.push_back(std::string(what) + " " + std::to_string(x) + " " + std::to_string(y));
  }

  Canvas canvas{*this, "canvas"};
  bool takes = true;
  int paints = 0;
  Color ground;
  std::vector<std::string> log;
};

class CanvasTest : public RuntimeTest {
 protected:
  CanvasTest() { window->Show(); }
  Ref<Host> window = New<Host>();
};

TEST_F(CanvasTest, PaintComesWithItsReasonsOnlyAndOnAnErasedSurface) {
  EXPECT_EQ(window->paints, 1);
  window->canvas.Graphics().Pixel(5, 5, kBlack);
  window->canvas.native().repaint();
  processEvents();
  EXPECT_EQ(window->paints, 1) << "the toolkit wants pixels";
  EXPECT_EQ(window->canvas.Graphics().Pixel(5, 5), kBlack);
  window->canvas.Refresh(true);
  EXPECT_EQ(window->paints, 2);
  EXPECT_EQ(window->ground, Color{0xABCDEF});
  window->canvas.Visible = false;
  window->canvas.Refresh(false);
  EXPECT_EQ(window->paints, 3);
  window->canvas.Visible = true;
  EXPECT_EQ(window->paints, 4);
  window->canvas.Width = 40;
  EXPECT_EQ(window->paints, 5);
  EXPECT_EQ(window->canvas.Graphics().Width(), 40);
}

TEST_F(CanvasTest, OnlyAPressThatIsTakenGrantsDragAndRelease) {
  gesture::hover(window->canvas, 3, 4);
  gesture::press(window->canvas, 3, 4);
  gesture::dragTo(window->canvas, -5, 200);
  gesture::release(window->canvas, -5, 200);
  window->takes = false;
  gesture::click(window->canvas, 1, 1);
  gesture::dragTo(window->canvas, 2, 2);
  const std::vector<std::string> expected{"move 3 4", "down 3 4", "drag -5 200", "up -5 200", "down 1 1"};
  EXPECT_EQ(window->log, expected);
}

TEST_F(CanvasTest, KeysComeAsOneByteAndTheTabulatorStillMovesOn) {
  window->canvas.SetFocus();
  for (const int key : {0x01000012, 0x01000014, 0x01000013, 0x01000015, 0x41, 0x01000020, 0x01000001}) {
    gesture::key(window->canvas, key);
  }
  const std::vector<std::string> expected{"key 28", "key 29", "key 30", "key 31", "key 97", "key 9"};
  EXPECT_EQ(window->log, expected) << "arrows, a letter, Shift alone, the tabulator";
}

TEST_F(CanvasTest, ACommandKeyIsNoCharacter) {
  window->canvas.SetFocus();
  gesture::shortcut(window->canvas, "Cmd+]");
  gesture::shortcut(window->canvas, "Cmd+O");
  EXPECT_EQ(window->log, std::vector<std::string>());
}

// Gives the action that the canvas agreed to, and whether the drop was taken.
std::pair<Qt::DropAction, bool> dropText(const Canvas& canvas, Qt::DropActions offered, Qt::KeyboardModifiers held) {
  QWidget& widget = canvas.native();
  QMimeData data;
  data.setText("#FF8000");
  QDragEnterEvent enter(QPoint(2, 2), offered, &data, Qt::LeftButton, held);
  QCoreApplication::sendEvent(&widget, &enter);
  if (!enter.isAccepted()) return {Qt::IgnoreAction, false};
  QDropEvent drop(QPointF(2, 2), offered, &data, Qt::LeftButton, held);
  QCoreApplication::sendEvent(&widget, &drop);
  return {drop.dropAction(), drop.isAccepted()};
}

TEST_F(CanvasTest, ADropIsCopiedAndNeverMoved) {
  window->canvas.AcceptTextDrop();
  const auto copied = std::pair(Qt::CopyAction, true);
  EXPECT_EQ(dropText(window->canvas, Qt::CopyAction | Qt::MoveAction, Qt::NoModifier), copied);
  EXPECT_EQ(dropText(window->canvas, Qt::CopyAction | Qt::MoveAction, Qt::ShiftModifier), copied);
  EXPECT_EQ(window->log, std::vector<std::string>(2, "drop #FF8000"));
}

TEST_F(CanvasTest, ADisabledCanvasIsPaintedAnewAndTakesDropsAlone) {
  window->canvas.AcceptTextDrop();
  window->canvas.SetFocus();
  window->canvas.Enabled = false;
  EXPECT_EQ(window->paints, 2);
  EXPECT_FALSE(gesture::hasKeyboard(window->canvas));
  gesture::hover(window->canvas, 1, 1);
  gesture::click(window->canvas, 1, 1);
  gesture::key(window->canvas, Qt::Key_A);
  EXPECT_TRUE(dropText(window->canvas, Qt::CopyAction, Qt::NoModifier).second);
  EXPECT_EQ(window->log, std::vector<std::string>{"drop #FF8000"});
}

TEST_F(CanvasTest, AHandlerMayCloseTheWindow) {
  window->canvas.MouseUp = [this](Int32, Int32) {
    window->Close();
    window = nullptr;
  };
  const Ref<Host> last = window;
  gesture::click(last->canvas, 1, 1);
  EXPECT_FALSE(last->isOpen());
}

}  // namespace
}  // namespace tavrelkin
