// The colour controls under keys and assistive technologies.

#include <QAccessible>
#include <QWidget>

#include "controls/ControlsTest.h"

namespace tavrelkin {
namespace {

class ModalWindow : public Window {
 public:
  ModalWindow() : Window({.title = "Modal", .width = 50, .height = 50, .frame = WindowFrame::movableModal}) {}
};

class ReachTest : public ControlsTest {
 protected:
  ReachTest() {
    host->palette.SetClut(New<zrClut>());
    host->palette.TheClut->Count = 70;
  }

  String afterKey(const RectControl& control, int key) const {
    return after([&] { gesture::key(control, key); });
  }
  String afterPress(QAccessibleInterface& part) const {
    return after([&] {
      part.actionInterface()->doAction(QAccessibleActionInterface::pressAction());
      processEvents();
    });
  }
  static QAccessibleInterface& shown(const RectControl& control) {
    return *QAccessible::queryAccessibleInterface(&control.native());
  }
};

TEST_F(ReachTest, TheKeysOfAButtonPressBoxAndButton) {
  for (const int key : {Qt::Key_Space, Qt::Key_Return, Qt::Key_Enter, Qt::Key_A}) {
    EXPECT_EQ(afterKey(host->box, key), key == Qt::Key_A ? "" : "box-000000 ") << key;
    EXPECT_EQ(afterKey(host->button, key), key == Qt::Key_A ? "" : "before-000000 button-000000 ") << key;
  }
}

TEST_F(ReachTest, ArrowsSelectTheNeighbourInThePalette) {
  const std::tuple<Int32, int, Int32> rows[] = {
      {0, Qt::Key_Right, 1},   {30, Qt::Key_Left, 29}, {5, Qt::Key_Down, 35},   {35, Qt::Key_Up, 5},
      {0, Qt::Key_Left, 0},    {5, Qt::Key_Up, 5},     {69, Qt::Key_Right, 69}, {45, Qt::Key_Down, 45},
      {12, Qt::Key_Space, 12}, {-1, Qt::Key_Down, 0},  {-1, Qt::Key_Return, 0}};
  for (const auto& [from, key, to] : rows) {
    host->palette.Selected = from;
    EXPECT_EQ(afterKey(host->palette, key), "selects-" + Str(to) + "-FFFFFF ") << from;
  }
  EXPECT_EQ(afterKey(host->palette, Qt::Key_A), "");
  host->palette.TheClut->Count = 0;
  EXPECT_EQ(afterKey(host->palette, Qt::Key_Down), "");
}

TEST_F(ReachTest, ABarTakesValuesWithinItsRangeAsFromAKey) {
  QAccessibleInterface& bar = shown(host->bar);
  host->bar.SetBaseColor(Color{0x302010});
  const auto increase = [&] { bar.actionInterface()->doAction(QAccessibleActionInterface::increaseAction()); };
  EXPECT_EQ(after(increase), "change-312010 ");
  for (const auto& [wanted, log] :
       {std::pair{7.9, "change-072010 "}, {-3.0, "change-002010 "}, {1e9, "change-FF2010 "}})
    EXPECT_EQ(after([&, value = wanted] { bar.valueInterface()->setCurrentValue(value); }), log) << wanted;
}

TEST_F(ReachTest, NothingIsDoneThatTheUserCouldNotDo) {
  QAccessibleInterface& box = shown(host->box);
  EXPECT_EQ(afterPress(box), "box-000000 ");
  host->box.Enabled = false;
  EXPECT_TRUE(box.state().disabled);
  EXPECT_EQ(afterPress(box), "");
  host->box.Enabled = true;
  const Ref<Window> modal = New<ModalWindow>();
  modal->Show();
  EXPECT_EQ(afterPress(box), "");
  modal->Close();
  EXPECT_EQ(afterPress(box), "box-000000 ");
}

TEST_F(ReachTest, CellsComeAndGoWithTheTable) {
  QAccessibleInterface& palette = shown(host->palette);
  ASSERT_EQ(palette.childCount(), 70);
  QAccessibleInterface* const cell = palette.child(31);
  EXPECT_EQ(cell, palette.child(31));
  EXPECT_EQ(palette.indexOfChild(cell), 31);
  EXPECT_EQ(cell->rect().topLeft() - palette.rect().topLeft(), QPoint(13, 13));
  EXPECT_EQ(palette.childAt(cell->rect().center().x(), cell->rect().center().y()), cell);
  EXPECT_EQ(afterPress(*cell), "selects-31-FFFFFF ");
  EXPECT_TRUE(cell->state().selected);
  host->palette.TheClut->Count = 31;
  EXPECT_FALSE(cell->isValid());
  EXPECT_EQ(cell->text(QAccessible::Name), "");
  EXPECT_EQ(afterPress(*cell), "");
  EXPECT_EQ(palette.child(31), nullptr);
}

}  // namespace
}  // namespace tavrelkin
