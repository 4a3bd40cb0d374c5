#include <algorithm>
#include <string>

#include <QColor>
#include <QCoreApplication>
#include <QCursor>
#include <QDrag>
#include <QDropEvent>
#include <QMimeData>
#include <QPixmap>
#include <QWidget>
#include <QWindow>

#include "color/zrColorLib.h"
#include "controls/zrColorBox.h"
#include "controls/zrColorButton.h"
#include "runtime/qt/Drags.h"
#include "support/Gestures.h"
#include "support/RuntimeTest.h"

namespace tavrelkin {
namespace {

constexpr Color kOrange{0xFF8000};

class Host : public Window {
 public:
  Host() : Window({.title = "Host", .width = 200, .height = 100}) {
    box.place(20, 30, 13, 13);
    box.Action = [this] { note("action"); };
    box.ColorDrop = [this](Color c) {
      note("asked-" + getHexStr(c));
      return accepts;
    };
    box.ColorChanged = [this] { note("changed"); };
    silent.place(80, 30, 13, 13);
    button.place(20, 70, 106, 20);
  }
  void note(const std::string& what) { log += what + "-" + getHexStr(box.Value) + " "; }

  zrColorBox box{*this, "box"};
  zrColorBox silent{*this, "silent"};  // its host has no handlers
  zrColorButton button{*this, "button"};
  bool accepts = true;
  std::string log;
};

// A drag of another program's comes over a control and ends there. False where the control takes no such thing.
bool dropFromOutside(const RectControl& control, const QMimeData& data) {
  QWidget* window = control.native().window();
  const QPoint at = control.native().mapTo(window, QPoint(5, 5));
  QDragEnterEvent enter(at, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
  QCoreApplication::sendEvent(window->windowHandle(), &enter);
  if (!enter.isAccepted()) return false;
  QDropEvent drop(at, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
  QCoreApplication::sendEvent(window->windowHandle(), &drop);
  return true;
}

class zrColorBoxDragTest : public RuntimeTest {
 protected:
  zrColorBoxDragTest() { host->Show(); }

  // Presses at (x, y), where the pointer then stays.
  static void press(const RectControl& control, Int32 x, Int32 y) {
    QCursor::setPos(control.native().mapToGlobal(QPoint(x, y)));
    processEvents();
    gesture::press(control, x, y);
  }

  // Moves the pressed pointer. The offscreen platform ends a drag at its beginning; what began stays until events come.
  void move(const RectControl& control) {
    const QPoint at = control.native().mapFromGlobal(QCursor::pos());
    gesture::dragTo(control, at.x(), at.y());
    const auto* drag = QCoreApplication::instance()->findChild<QDrag*>();
    if (!drag) return;
    ++drags;
    dragged = fromMime(*drag->mimeData());
    colour = drag->mimeData()->colorData().value<QColor>();
    outline = QRect(-drag->hotSpot(), drag->pixmap().size());
    processEvents();
  }

  const Ref<Host> host = New<Host>();
  int drags = 0;
  Ref<DragItem> dragged;
  QColor colour;
  QRect outline;
};

TEST_F(zrColorBoxDragTest, WithTheOptionKeyAColourIsCarriedAwayInEachForm) {
  fake().optionHeld = true;
  host->box.SetValue(kOrange);
  host->button.SetValue(kOrange);
  for (const Canvas* source : {static_cast<Canvas*>(&host->box), static_cast<Canvas*>(&host->button)}) {
    drags = 0;
    press(*source, 8, 9);
    move(*source);
    ASSERT_EQ(drags, 1);
    EXPECT_EQ(dragged->MacData("hcol"), "255, 128, 0");
    EXPECT_EQ(dragged->Text(), "#FF8000");
    EXPECT_EQ(colour, QColor(255, 128, 0));
    EXPECT_EQ(outline, QRect(-10, -10, 21, 21)) << "around the pointer";
    move(*source);
    EXPECT_EQ(drags, 1) << "one a press";
    EXPECT_TRUE(host->box.IsDrag || host->button.IsDrag);
    gesture::release(*source, 10, 10);
    EXPECT_FALSE(host->box.IsDrag || host->button.IsDrag);
  }
  EXPECT_EQ(host->log, "");
  EXPECT_TRUE(fake().colourPrompts.empty());
}

TEST_F(zrColorBoxDragTest, WithoutTheOptionKeyAPressIsAClick) {
  host->box.optionAllowDrag = true;
  press(host->box, 9, 9);
  move(host->box);
  gesture::release(host->box, 9, 9);
  EXPECT_EQ(host->log, "action-000000 ");
  EXPECT_EQ(drags, 0);
}

TEST_F(zrColorBoxDragTest, TheKeyMayComeLateAndAReleaseElsewhereIsForgotten) {
  for (const Canvas* source : {static_cast<Canvas*>(&host->box), static_cast<Canvas*>(&host->button)}) {
    drags = 0;
    fake().optionHeld = false;
    press(*source, 6, 6);
    move(*source);
    EXPECT_EQ(drags, 0);
    fake().optionHeld = true;
    move(*source);
    EXPECT_EQ(drags, 1);
    gesture::click(*source, 6, 6);
  }
  EXPECT_EQ(host->log, "action-000000 ");
  EXPECT_EQ(fake().colourPrompts.size(), 1U);
}

TEST_F(zrColorBoxDragTest, ADropIsTakenWhereTheHostAgrees) {
  const struct {
    const char* privately;
    const char* text;
    bool accepts;
    const char* log;
    Color after;
  } rows[] = {
      {"255, 128, 0", "#010203", true, "asked-FF8000-112233 changed-FF8000 ", kOrange},
      {"255, 128, 0", "#010203", false, "asked-FF8000-112233 ", Color{0x112233}},
      {nullptr, " #ff8000 ", true, "asked-FF8000-112233 changed-FF8000 ", kOrange},
      {nullptr, "#FF8000", false, "asked-FF8000-112233 ", Color{0x112233}},
      {nullptr, "nonsense", true, "", Color{0x112233}},
      {nullptr, nullptr, true, "", Color{0x112233}},
  };
  for (const auto& [privately, text, accepts, log, after] : rows) {
    const Ref<DragItem> item = New<DragItem>();
    if (privately) item->MacData("hcol", privately);
    if (text) item->SetText(text);
    host->box.SetValue(Color{0x112233});
    host->accepts = accepts;
    host->log.clear();
    host->box.Event_DropObject(item, 0);
    EXPECT_EQ(host->log, log);
    EXPECT_EQ(host->box.Value, after) << log;
    EXPECT_EQ(Right(host->box.HelpTag.get(), 6), getHexStr(after)) << log;
    for (Int32 at = 0; at < 169; ++at) {
      const Int32 x = at % 13;
      const Int32 y = at / 13;
      const Int32 depth = std::min({x, y, 12 - x, 12 - y});
      EXPECT_EQ(host->box.Graphics().Pixel(x, y), depth == 0 ? Color{0x909090} : depth == 1 ? kWhite : after);
    }
  }
}

TEST_F(zrColorBoxDragTest, ColoursComeFromOtherProgramsToo) {
  QMimeData foreign;
  foreign.setColorData(QColor(1, 2, 3));
  for (const Canvas* target : {static_cast<Canvas*>(&host->box), static_cast<Canvas*>(&host->button)})
    EXPECT_TRUE(dropFromOutside(*target, foreign));
  EXPECT_EQ(host->box.Value, RGB(1, 2, 3));
  EXPECT_EQ(host->button.Value, RGB(1, 2, 3));
  EXPECT_TRUE(dropFromOutside(host->silent, foreign));
  EXPECT_EQ(host->silent.Value, kBlack) << "no host agreed";
  EXPECT_EQ(host->silent.HelpTag.get(), "");

  QMimeData malformed;
  malformed.setData("application/x-color", "abc");
  dropFromOutside(host->button, malformed);
  EXPECT_EQ(host->button.Value, RGB(1, 2, 3)) << "offered, but not there";
  malformed.setText("#445566");
  EXPECT_TRUE(dropFromOutside(host->button, malformed));
  EXPECT_EQ(host->button.Value, Color{0x445566});
}

}  // namespace
}  // namespace tavrelkin
