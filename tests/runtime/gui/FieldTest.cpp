// The controls that the toolkit has of its own: the text field, the popup menu, the slider, the label and the line.

#include <string>

#include <QApplication>
#include <QFontMetrics>
#include <QKeyEvent>
#include <QWidget>

#include "runtime/gui/Application.h"
#include "runtime/gui/Clipboard.h"
#include "runtime/gui/Line.h"
#include "runtime/gui/PopupMenu.h"
#include "runtime/gui/Slider.h"
#include "runtime/gui/StaticText.h"
#include "runtime/gui/TextField.h"
#include "support/Gestures.h"
#include "support/RuntimeTest.h"

namespace tavrelkin {
namespace {

constexpr int kKeyUp = Qt::Key_Up;
constexpr int kKeyDown = Qt::Key_Down;

class Host : public Window {
 public:
  Host() : Window({.title = "Host", .width = 100, .height = 80}) {
    MenuBar = Application::current().MenuBar;
    BackColor = kWhite;
    field.place(0, 0, 60, 22);
    list.place(0, 30, 80, 21);
    slider.place(0, 55, 80, 20);
    list.Change = [this] { log += Str(list.ListIndex) + list.Text() + " "; };
  }
  void AddMenuHandlers() override {
    addMenuHandler("paste", [this] {
      log += "paste ";
      return true;
    });
  }

  std::string log;
  TextField field{*this, "field"};
  PopupMenu list{*this, "list"};
  Slider slider{*this, "slider"};
  StaticText label{*this, "label"};
  Line line{*this, "line"};
};

class Commands : public Application {
 public:
  Commands() {
    const Ref<MenuItem> menu = New<MenuItem>("menu", "Menu");
    menu->Append(New<MenuItem>("copy", "Copy", "Cmd+C"));
    menu->Append(New<MenuItem>("paste", "Paste", "Cmd+V"));
    const Ref<tavrelkin::MenuBar> bar = New<tavrelkin::MenuBar>();
    bar->Append(menu);
    MenuBar = bar;
  }
};

class FieldTest : public RuntimeTest {
 protected:
  FieldTest() {
    start(New<Commands>());
    window = New<Host>();
    window->Show();
  }
  // The window's content as it is on the screen.
  QImage shown() const { return window->content().grab().toImage(); }

  Ref<Host> window;
};

TEST_F(FieldTest, KeysOfAnAnsweredCommandGoToItAndThoseOfADisabledOneToTheField) {
  window->field.Text = "text";
  window->field.SetFocus();
  Clipboard().SetText("elsewhere");
  gesture::shortcut(window->field, "Cmd+A");
  gesture::shortcut(window->field, "Cmd+V");
  EXPECT_EQ(window->log, "paste ");
  EXPECT_EQ(window->field.Text.get(), "text");
  gesture::shortcut(window->field, "Cmd+C");
  EXPECT_EQ(Clipboard().Text(), "text");
}

TEST_F(FieldTest, AListSelectsNothingUntilToldAndTellsOfTheHandOnly) {
  PopupMenu& list = window->list;
  for (const char* row : {"a", "b", "c"})
    list.AddRow(row);
  EXPECT_EQ(list.Text(), "") << "the toolkit would begin at the first";
  list.ListIndex = 3;
  EXPECT_EQ(list.ListIndex, -1);
  list.ListIndex = 0;
  EXPECT_EQ(window->log, "");
  for (const int key : {kKeyDown, kKeyDown, kKeyDown, kKeyUp})
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
  int changes = 0;
  window->slider.ValueChanged = [&changes] { ++changes; };
  window->slider.Value = 1000;
  EXPECT_EQ(window->slider.Value, 100);
  window->slider.Maximum = 60;
  EXPECT_EQ(window->slider.Value, 60);
  EXPECT_EQ(changes, 0);

  const struct {
    bool live;
    int during, after;
  } rows[] = {{true, 2, 2}, {false, 0, 1}};
  for (const auto& row : rows) {
    window->slider.Value = 0;
    window->slider.LiveScroll = row.live;
    changes = 0;
    gesture::press(window->slider, 6, 10);
    gesture::dragTo(window->slider, 40, 10);
    gesture::dragTo(window->slider, 60, 10);
    EXPECT_EQ(changes, row.during) << row.live;
    gesture::release(window->slider, 60, 10);
    EXPECT_EQ(changes, row.after) << row.live;
  }
}

TEST_F(FieldTest, ATextThatIsTooWideIsSetNarrower) {
  window->label.Text = "Color: 112.171.255, 215.56.100, #70ABFF";
  const QWidget& widget = window->label.native();
  const auto wide = [&](const QFont& font) {
    return QFontMetrics(font).horizontalAdvance(QString::fromStdString(window->label.Text));
  };
  window->label.Width = 1000;
  const QFont base = widget.font();
  const int natural = wide(base);
  for (int width = natural + 10; width > natural * 7 / 10; --width) {
    window->label.Width = width;
    ASSERT_LE(wide(widget.font()), width) << natural;
    if (width >= natural) {
      ASSERT_EQ(widget.font(), base);
    }
  }
  window->label.Width = 10;
  EXPECT_GT(wide(widget.font()), natural / 2);
  window->label.Text = "1";
  EXPECT_EQ(widget.font(), base);
}

TEST_F(FieldTest, ALineCoversBothItsEndsAndIsCutOffAtTheWindow) {
  constexpr Color grey{0xBFBFBF};
  window->line.LineColor = grey;
  const struct {
    Int32 x1, y1, x2, y2, width;
    QRect inked;
  } rows[] = {
      {130, 60, -1, 60, 1, {0, 60, 100, 1}},
      {95, -9, 95, 20, 2, {95, 0, 2, 22}},
      {90, 60, 96, 60, 0, {}},
  };
  for (const auto& row : rows) {
    window->line.BorderWidth = row.width;
    window->line.setPoints(row.x1, row.y1, row.x2, row.y2);
    const QImage picture = shown();
    for (int y = 0; y < 80; ++y) {
      for (int x = 85; x < 100; ++x) {
        const bool inked = row.inked.contains(x, y);
        ASSERT_EQ(picture.pixelColor(x, y) == QColor(0xBFBFBF), inked)
            << row.x1 << ", " << row.y1 << ": " << x << ", " << y;
      }
    }
  }
}

}  // namespace
}  // namespace tavrelkin
