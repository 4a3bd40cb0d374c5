// The box, and the drags that start in the same way from a box and a button.

#include <array>

#include <QCoreApplication>
#include <QCursor>
#include <QDrag>
#include <QMimeData>
#include <QPixmap>
#include <QWidget>

#include "controls/ControlsTest.h"
#include "runtime/toolkit/widgets/Drags.h"

namespace tavrelkin {
namespace {

constexpr Color kOrange{0xFF8000};

class zrColorBoxTest : public ControlsTest {
 protected:
  // Moves the pointer to (6, 7) of a control and presses the button.
  static void press(const RectControl& control) {
    QCursor::setPos(control.native().mapToGlobal(QPoint(6, 7)));
    processEvents();
    gesture::press(control, 6, 7);
  }

  // Moves the pointer while the button is held. Returns whether a drag has started. The offscreen platform ends it at
  // once, but the drag object exists until events are processed.
  bool drags(const RectControl& control) {
    gesture::dragTo(control, 6, 7);
    const auto* drag = QCoreApplication::instance()->findChild<QDrag*>();
    if (!drag) return false;
    const Ref<DragItem> item = fromMime(*drag->mimeData());
    dragged = item->MacData("hcol") + " " + item->Text();
    outline = QRect(-drag->hotSpot(), drag->pixmap().size());
    processEvents();
    return true;
  }

  const std::array<const Canvas*, 2> sources{&host->box, &host->button};
  String dragged;
  QRect outline;
};

TEST_F(zrColorBoxTest, AClickCountsInsideButNotInTheFirstRowAndColumn) {
  for (const auto& [x, y, log] :
       {std::tuple{1, 1, "box-000000 "}, {12, 13, "box-000000 "}, {0, 6, ""}, {6, 0, ""}, {13, 6, ""}, {6, 14, ""}}) {
    gesture::press(host->box, 6, 6);
    EXPECT_EQ(after([&, to = std::pair{x, y}] { gesture::release(host->box, to.first, to.second); }), log) << x;
  }
}

TEST_F(zrColorBoxTest, WithTheOptionKeyAColorIsCarriedAwayInEachForm) {
  host->box.SetValue(kOrange);
  host->button.SetValue(kOrange);
  for (const Canvas* source : sources) {
    fake().optionHeld = false;
    press(*source);
    EXPECT_FALSE(drags(*source));
    fake().optionHeld = true;
    EXPECT_TRUE(drags(*source)) << "the key may come late";
    EXPECT_EQ(dragged, "255, 128, 0 #FF8000");
    EXPECT_EQ(outline, QRect(-10, -10, 21, 21)) << "around the pointer";
    EXPECT_FALSE(drags(*source)) << "one a press";
    EXPECT_EQ(after([&] { gesture::release(*source, 6, 7); }), "") << "no click";
    press(*source);
    EXPECT_TRUE(drags(*source));
    EXPECT_NE(after([&] { gesture::click(*source, 6, 7); }), "") << "a release elsewhere is forgotten";
  }
}

TEST_F(zrColorBoxTest, ADropIsTakenWhereTheHostAgrees) {
  const std::tuple<const char*, const char*, bool, const char*, Color> rows[] = {
      {"255, 128, 0", "#010203", true, "asks-FF8000 changes-FF8000 ", kOrange},
      {nullptr, " #ff8000 ", true, "asks-FF8000 changes-FF8000 ", kOrange},
      {nullptr, "#FF8000", false, "asks-FF8000 ", Color{0x112233}},
      {nullptr, "nonsense", true, "", Color{0x112233}},
  };
  for (const auto& [privately, text, agrees, log, value] : rows) {
    const Ref<DragItem> item = New<DragItem>();
    if (privately) item->MacData("hcol", privately);
    item->SetText(text);
    host->box.SetValue(Color{0x112233});
    host->agrees = agrees;
    EXPECT_EQ(after([&] { host->box.Event_DropObject(item, 0); }), log);
    for (const auto& [x, c] : {std::pair{0, Color{0x909090}}, {1, kWhite}, {2, value}, {10, value}, {11, kWhite}})
      EXPECT_EQ(host->box.Graphics().Pixel(x, 6), c) << log << x;
  }
  EXPECT_EQ(host->box.HelpTag.get(), "Color: 17.34.51, #112233");
}

}  // namespace
}  // namespace tavrelkin
