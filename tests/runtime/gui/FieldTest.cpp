// The controls that the toolkit has of its own: the text field, the popup menu and the line.

#include <string>

#include <QApplication>
#include <QKeyEvent>
#include <QWidget>

#include "runtime/gui/Application.h"
#include "runtime/gui/Clipboard.h"
#include "runtime/gui/Line.h"
#include "runtime/gui/PopupMenu.h"
#include "runtime/gui/TextField.h"
#include "support/DragGestures.h"
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

TEST_F(FieldTest, TheFieldTakesTheKeyboardByAPressAndHoldsWhatIsTyped) {
  window->field.Text = "1.8";
  gesture::click(window->field, 5, 5);
  EXPECT_TRUE(waitUntil([this] { return gesture::hasKeyboard(window->field); }));
  gesture::shortcut(window->field, "Cmd+A");
  gesture::type(window->field, "2,2 x");
  EXPECT_EQ(window->field.Text.get(), "2,2 x");
  gesture::shortcut(window->field, "Cmd+Z");
  window->field.Text = "1.80";
  EXPECT_EQ(window->field.Text.get(), "1.80");
}

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

  // Without a menu bar, and so without commands, all keys are the field's.
  window->MenuBar = nullptr;
  Clipboard().SetText("from elsewhere");
  gesture::shortcut(window->field, "Cmd+V");
  EXPECT_EQ(window->field.Text.get(), "from elsewhere");
  EXPECT_EQ(window->log, "paste ");
}

TEST_F(FieldTest, AFieldTakesNoDropUntilItSaysSo) {
  const Ref<DragItem> item = New<DragItem>();
  item->SetText("#FF8000");
  EXPECT_FALSE(gesture::drop(window->field, *item));
  EXPECT_EQ(window->field.Text.get(), "");
}

TEST_F(FieldTest, AListSelectsNothingUntilToldAndTellsOfTheHandOnly) {
  PopupMenu& list = window->list;
  const auto expectSelected = [&list](Int32 row, const char* text) {
    EXPECT_EQ(list.ListIndex, row);
    EXPECT_EQ(list.Text(), text);
  };
  expectSelected(-1, "");
  for (const char* row : {"a", "b", "c"})
    list.AddRow(row);
  expectSelected(-1, "");
  list.ListIndex = 2;
  expectSelected(2, "c");
  for (const Int32 none : {3, -1, -7}) {
    list.ListIndex = none;
    expectSelected(-1, "");
  }
  list.ListIndex = 0;
  EXPECT_EQ(window->log, "");
  for (const int key : {kKeyDown, kKeyDown, kKeyDown, kKeyUp})
    gesture::key(list, key);
  EXPECT_EQ(window->log, "1b 2c 1b ");
  expectSelected(1, "b");
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

TEST_F(FieldTest, ALineCoversBothItsEndsAndIsCutOffAtTheWindow) {
  constexpr Color grey{0xBFBFBF};
  window->line.LineColor = grey;
  const struct {
    Int32 x1, y1, x2, y2, width;
    QRect inked;
  } rows[] = {
      {-1, 60, 130, 60, 1, {0, 60, 100, 1}},
      {130, 60, -1, 60, 1, {0, 60, 100, 1}},
      {90, 5, 95, 5, 1, {90, 5, 6, 1}},
      {95, -9, 95, 20, 2, {95, 0, 2, 22}},
      {90, 70, 90, 70, 3, {90, 70, 3, 3}},
      {90, 60, 96, 60, 0, {}},
      {-20, 60, -10, 60, 1, {}},
  };
  for (const auto& row : rows) {
    window->line.BorderWidth = row.width;
    window->line.draw(row.x1, row.y1, row.x2, row.y2);
    const QImage picture = shown();
    for (int y = 0; y < 80; ++y) {
      for (int x = 85; x < 100; ++x) {
        const bool inked = row.inked.contains(x, y);
        ASSERT_EQ(picture.pixelColor(x, y) == QColor(0xBFBFBF), inked)
            << row.x1 << ", " << row.y1 << ": " << x << ", " << y;
      }
    }
  }
  window->line.draw(7, 5, 3, 2);
  EXPECT_EQ(window->line.Left, 3);
  EXPECT_EQ(window->line.Top, 2);
  EXPECT_EQ(window->line.Width, 4);
  EXPECT_EQ(window->line.Height, 3);
}

}  // namespace
}  // namespace tavrelkin
