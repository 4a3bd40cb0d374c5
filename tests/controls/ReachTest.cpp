// The colour controls by key, and as assistive technologies meet them.

#include <QAccessible>
#include <QWidget>

#include "controls/zrClutPalette.h"
#include "controls/zrColorBox.h"
#include "controls/zrColorButton.h"
#include "controls/zrColorCHBar.h"
#include "support/Gestures.h"
#include "support/RuntimeTest.h"

namespace tavrelkin {
namespace {

class Host : public Window {
 public:
  Host() : Window({.title = "Host", .width = 431, .height = 200}) {
    palette.place(20, 7, 391, 105);
    box.place(20, 120, 20, 20);
    button.place(60, 120, 106, 20);
    bar.place(200, 120, 121, 20);
    palette.Action = [this](Int32 index, Color) { log += "palette " + Str(index) + " "; };
    box.Action = [this] { log += "box "; };
    button.BeforeSelectColor = [this] {
      log += "before ";
      return true;
    };
    button.Action = [this] { log += "button "; };
    bar.SetColorChannel = [] { return 2; };
    bar.Change = [this] { log += "bar " + Str(bar.propBaseColor.blue()) + " "; };
  }
  zrClutPalette palette{*this, "palette"};
  zrColorBox box{*this, "box"};
  zrColorButton button{*this, "button"};
  zrColorCHBar bar{*this, "bar"};
  String log;
};

class ModalWindow : public Window {
 public:
  ModalWindow() : Window({.title = "Modal", .width = 50, .height = 50, .frame = WindowFrame::movableModal}) {}
};

class ReachTest : public RuntimeTest {
 protected:
  ReachTest() {
    host->Show();
    host->palette.SetClut(New<zrClut>());
    host->palette.TheClut->Count = 70;
  }

  // What becomes of it.
  String afterKey(const RectControl& control, int key) const {
    host->log = "";
    gesture::key(control, key);
    return host->log;
  }
  String after(QAccessibleInterface& part, const QString& action) const {
    host->log = "";
    part.actionInterface()->doAction(action);
    processEvents();
    return host->log;
  }
  static QAccessibleInterface& shown(const RectControl& control) {
    return *QAccessible::queryAccessibleInterface(&control.native());
  }

  const Ref<Host> host = New<Host>();
};

TEST_F(ReachTest, TheKeysOfAButtonPressBoxAndButton) {
  for (const int key : {Qt::Key_Space, Qt::Key_Return, Qt::Key_Enter}) {
    EXPECT_EQ(afterKey(host->box, key), "box ");
    EXPECT_EQ(afterKey(host->button, key), "before button ");
  }
  for (const int key : {Qt::Key_A, Qt::Key_Left, Qt::Key_Escape}) {
    EXPECT_EQ(afterKey(host->box, key), "");
    EXPECT_EQ(afterKey(host->button, key), "");
  }
}

TEST_F(ReachTest, ArrowsSelectTheNeighbourInThePalette) {
  const struct {
    Int32 from;
    int key;
    Int32 to;
  } rows[] = {{0, Qt::Key_Right, 1},   {30, Qt::Key_Left, 29}, {5, Qt::Key_Down, 35},   {35, Qt::Key_Up, 5},
              {0, Qt::Key_Left, 0},    {5, Qt::Key_Up, 5},     {69, Qt::Key_Right, 69}, {45, Qt::Key_Down, 45},
              {12, Qt::Key_Space, 12}, {-1, Qt::Key_Down, 0},  {-1, Qt::Key_Return, 0}};
  for (const auto& [from, key, to] : rows) {
    host->palette.Selected = from;
    EXPECT_EQ(afterKey(host->palette, key), "palette " + Str(to) + " ") << from;
    EXPECT_EQ(host->palette.Selected, to);
  }
  EXPECT_EQ(afterKey(host->palette, Qt::Key_A), "");
  host->palette.TheClut->Count = 0;
  EXPECT_EQ(afterKey(host->palette, Qt::Key_Down), "");
}

TEST_F(ReachTest, ABarTakesValuesWithinItsRangeAsFromAKey) {
  QAccessibleInterface& bar = shown(host->bar);
  host->bar.SetBaseColor(Color{0x102030});
  EXPECT_EQ(bar.role(), QAccessible::Slider);
  EXPECT_EQ(bar.text(QAccessible::Name), "Blue");
  EXPECT_EQ(bar.valueInterface()->currentValue(), 0x30);
  EXPECT_EQ(after(bar, QAccessibleActionInterface::increaseAction()), "bar 49 ");
  for (const auto& [wanted, taken] : {std::pair{7.9, 7}, {-3.0, 0}, {1e9, 255}}) {
    bar.valueInterface()->setCurrentValue(wanted);
    EXPECT_EQ(host->bar.propBaseColor, RGB(0x10, 0x20, taken));
  }
}

TEST_F(ReachTest, NothingIsDoneThatTheUserCouldNotDo) {
  const QString press = QAccessibleActionInterface::pressAction();
  QAccessibleInterface& box = shown(host->box);
  EXPECT_EQ(after(box, press), "box ");
  host->box.Enabled = false;
  EXPECT_TRUE(box.state().disabled);
  EXPECT_EQ(after(box, press), "");
  host->box.Enabled = true;
  host->Height = 110;
  EXPECT_TRUE(box.state().offscreen);
  EXPECT_EQ(after(box, press), "");
  host->Height = 200;
  const Ref<Window> modal = New<ModalWindow>();
  modal->Show();
  EXPECT_EQ(after(box, press), "");
  modal->Close();
  EXPECT_EQ(after(box, press), "box ");
}

TEST_F(ReachTest, CellsComeAndGoWithTheTable) {
  QAccessibleInterface& palette = shown(host->palette);
  ASSERT_EQ(palette.childCount(), 70);
  QAccessibleInterface* const cell = palette.child(31);
  EXPECT_EQ(cell, palette.child(31));
  EXPECT_EQ(palette.indexOfChild(cell), 31);
  EXPECT_EQ(cell->rect().topLeft() - palette.rect().topLeft(), QPoint(13, 13));
  EXPECT_EQ(palette.childAt(cell->rect().center().x(), cell->rect().center().y()), cell);
  EXPECT_EQ(after(*cell, QAccessibleActionInterface::pressAction()), "palette 31 ");
  EXPECT_TRUE(cell->state().selected);
  host->palette.TheClut->Count = 31;
  EXPECT_FALSE(cell->isValid());
  EXPECT_EQ(cell->text(QAccessible::Name), "");
  EXPECT_EQ(after(*cell, QAccessibleActionInterface::pressAction()), "");
  EXPECT_EQ(palette.child(31), nullptr);
}

}  // namespace
}  // namespace tavrelkin
