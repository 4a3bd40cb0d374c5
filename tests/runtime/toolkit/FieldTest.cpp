// The toolkit's ready-made controls: the popup menu, the slider, the label and the line.

#include <string>
#include <tuple>
#include <vector>

#include <QAbstractEventDispatcher>
#include <QApplication>
#include <QFontMetrics>
#include <QKeyEvent>
#include <QWidget>

#include "fakes/Gestures.h"
#include "fakes/RuntimeTest.h"
#include "runtime/toolkit/PopupMenu.h"
#include "runtime/toolkit/Shapes.h"
#include "runtime/toolkit/Slider.h"
#include "runtime/toolkit/StaticText.h"

namespace tavrelkin {
namespace {

class Host : public Window {
 public:
  Host() : Window({.title = "Host", .width = 100, .height = 80}) {
    list.place(0, 30, 80, 21);
    slider.place(0, 55, 80, 20);
    list.Change = [this] { log += Str(list.ListIndex) + list.Text() + " "; };
    slider.ValueChanged = [this] { log += "slid "; };
  }
  String log;
  PopupMenu list{*this, "list"};
  Slider slider{*this, "slider"};
  StaticText label{*this, "label"};
  Line line{*this, "line"};
};

class FieldTest : public RuntimeTest {
 protected:
  FieldTest() { window->Show(); }

  // The events of the slider for a press at the first column and a drag over the others; after the dot, those of the
  // release.
  String slide(bool live, const std::vector<Int32>& columns) const {
    Slider& slider = window->slider;
    slider.Value = 0;
    slider.LiveScroll = live;
    window->log.clear();
    gesture::press(slider, columns.front(), 10);
    EXPECT_TRUE(QAbstractEventDispatcher::instance()->registeredTimers(&slider.native()).isEmpty()) << "it repeats";
    for (std::size_t i = 1; i < columns.size(); ++i)
      gesture::dragTo(slider, columns[i], 10);
    window->log += ".";
    gesture::release(slider, columns.back(), 10);
    return window->log;
  }

  const Ref<Host> window = New<Host>();
};

TEST_F(FieldTest, AListSelectsNothingUntilToldAndTellsOfTheHandOnly) {
  PopupMenu& list = window->list;
  for (const char* row : {"a", "b", "c"})
    list.AddRow(row);
  EXPECT_EQ(list.Text(), "") << "the toolkit would begin at the first";
  list.ListIndex = 3;
  EXPECT_EQ(list.ListIndex, -1);
  list.ListIndex = 0;
  EXPECT_EQ(window->log, "");
  for (const int key : {Qt::Key_Down, Qt::Key_Down, Qt::Key_Down, Qt::Key_Up})
    gesture::key(list, key);
  EXPECT_EQ(window->log, "1b 2c 1b ");
}

TEST_F(FieldTest, TheSameRowMayBeChosenAgainFromTheOpenList) {
  window->list.AddRow("a");
  window->list.ListIndex = 0;
  gesture::click(window->list, 5, 5);
  QWidget* opened = nullptr;
  ASSERT_TRUE(waitUntil([&opened] { return (opened = QApplication::activePopupWidget()) != nullptr; }));
  QKeyEvent enter(QEvent::KeyPress, Qt::Key_Return, Qt::NoModifier);
  QApplication::sendEvent(opened->focusWidget() ? opened->focusWidget() : opened, &enter);
  EXPECT_EQ(window->log, "0a ");
}

TEST_F(FieldTest, ASliderKeepsItsValueInItsRangeAndTellsOfTheHandOnly) {
  Slider& slider = window->slider;
  slider.Value = 1000;
  EXPECT_EQ(slider.Value, 100);
  slider.Maximum = 60;
  EXPECT_EQ(slider.Value, 60);
  EXPECT_EQ(window->log, "");
  for (const auto& [live, log] : {std::pair{true, "slid slid ."}, {false, ".slid "}}) {
    EXPECT_EQ(slide(live, {6, 40, 60}), log);
    EXPECT_GT(slider.Value, 0);
  }
}

TEST_F(FieldTest, APressBesideTheHandleIsOneStepThatIsToldLikeADrag) {
  Slider& slider = window->slider;
  for (const auto& [live, log] : {std::pair{true, "slid ."}, {false, ".slid "}}) {
    EXPECT_EQ(slide(live, {70}), log);
    EXPECT_EQ(slider.Value, 10);
  }
}

TEST_F(FieldTest, ATextThatIsTooWideIsSetNarrower) {
  StaticText& label = window->label;
  label.Text = "Color: 112.171.255, 215.56.100, #70ABFF";
  const auto font = [&] { return label.native().font(); };
  const auto wide = [&] { return QFontMetrics(font()).horizontalAdvance(QString::fromStdString(label.Text)); };
  label.Width = 1000;
  const QFont base = font();
  const int natural = wide();
  for (int width = natural; width > natural * 7 / 10; --width) {
    label.Width = width;
    ASSERT_LE(wide(), width) << natural;
    ASSERT_EQ(font() == base, width == natural) << width;
  }
  label.Width = 10;
  EXPECT_GT(wide(), natural / 2);
  label.Text = "1";
  EXPECT_EQ(font(), base);
}

TEST_F(FieldTest, ALineCoversBothItsEndsAndIsCutOffAtTheWindow) {
  window->line.LineColor = Color{0xBFBFBF};
  window->line.BorderWidth = 2;
  for (const auto& [from, to, inked] : {std::tuple{QPoint(95, 20), QPoint(95, -9), QRect(95, 0, 2, 22)},
                                        {QPoint(130, 60), QPoint(92, 60), QRect(92, 60, 8, 2)}}) {
    window->line.setPoints(from.x(), from.y(), to.x(), to.y());
    const QImage shown = window->content().grab().toImage();
    for (int i = 0; i < 80 * 10; ++i) {
      const QPoint at(90 + i % 10, i / 10);
      ASSERT_EQ(shown.pixelColor(at) == QColor(0xBFBFBF), inked.contains(at)) << at.x() << ", " << at.y();
    }
  }
}

}  // namespace
}  // namespace tavrelkin
