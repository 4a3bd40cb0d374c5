// Controls as their window and the user see them, and how windows end.

#include <functional>
#include <string>

#include <QFontMetrics>
#include <QMenuBar>
#include <QWidget>

#include "runtime/gui/Application.h"
#include "runtime/gui/Canvas.h"
#include "runtime/gui/PushButton.h"
#include "runtime/gui/Slider.h"
#include "runtime/gui/StaticText.h"
#include "runtime/gui/Window.h"
#include "runtime/qt/Shortcut.h"
#include "runtime/qt/WindowWidget.h"
#include "runtime/system/System.h"
#include "support/Gestures.h"
#include "support/RuntimeTest.h"

namespace tavrelkin {
namespace {

class Named : public Canvas {
 public:
  Named(Window& owner, String name, std::string& events) : Canvas(owner, std::move(name)), log(events) {}
  void Event_Open() override { log += Name() + " "; }
  std::string& log;
};

class Host : public Window {
 public:
  explicit Host(std::string& events) : Window({.title = "Host", .width = 100, .height = 80}), log(events) {
    MenuBar = Application::current().MenuBar;
    slider.place(0, 0, 100, 20);
    second.place(10, 30, 30, 20);
    button.place(50, 30, 40, 20);
    label.place(0, 60, 60, 20);
  }
  ~Host() override { log += "gone "; }
  void AddMenuHandlers() override {
    log += "handlers ";
    addMenuHandler("refused", [this] {
      log += "window ";
      return false;
    });
    addMenuHandler("close", [this] {
      closeAndGoOn();
      return true;
    });
  }
  void Event_Open() override { log += "open "; }
  void Event_Close() override { log += "close "; }

  // What a handler may do that closes its window.
  void closeAndGoOn() {
    Close();
    second.Graphics().Pixel(0, 0, kBlack);
    label.Text = "closed";
    log += "done ";
  }

  std::string& log;
  Slider slider{*this, "slider"};
  Named second{*this, "second", log};
  Named first{*this, "first", log};
  PushButton button{*this, "button"};
  StaticText label{*this, "label"};
};

class Commands : public Application {
 public:
  explicit Commands(std::string& events) : log(events) {
    const Ref<tavrelkin::MenuBar> bar = New<tavrelkin::MenuBar>();
    const Ref<MenuItem> menu = New<MenuItem>("menu", "Menu");
    menu->Append(New<MenuItem>("refused", "Refused", "Cmd+R"));
    menu->Append(New<MenuItem>("close", "Close", "Cmd+W"));
    menu->Append(New<MenuItem>("nobody", "Nobody's", "Cmd+N"));
    menu->Append(New<QuitMenuItem>("quit", "Quit", "Cmd+Q"));
    bar->Append(menu);
    MenuBar = bar;
  }
  void AddMenuHandlers() override {
    addMenuHandler("refused", [this] {
      log += "application ";
      return true;
    });
    enableMenuItems();
  }
  std::string& log;
};

// Outlives the windows, which write in it to the last.
struct Log {
  std::string log;
};

class ControlTest : protected Log, public RuntimeTest {
 protected:
  ControlTest() { start(New<Commands>(log)); }

  // A window that nobody but its being open keeps alive, with the events so far forgotten.
  Host& open() {
    const Ref<Host> window = New<Host>(log);
    window->Show();
    log.clear();
    return *window;
  }
  static MenuItem& item(const char* name) { return *Application::current().MenuBar->Child(name); }
};

TEST_F(ControlTest, OpenComesForTheControlsInTheirOrderThenForTheWindow) {
  const Ref<Host> window = New<Host>(log);
  EXPECT_EQ(log, "handlers second first open ");
}

TEST_F(ControlTest, AWindowClosesOnceAndGoesOnlyAfterTheHandlerThatClosedIt) {
  const struct {
    const char* way;
    std::function<void(Host&)> close;
    const char* log;
  } rows[] = {
      {"frame", [](Host& host) { gesture::closeByFrame(host); }, "close gone "},
      {"button", [](Host& host) { gesture::click(host.button, 5, 5); }, "close done gone "},
      {"mouse", [](Host& host) { gesture::press(host.second, 5, 5); }, "close done gone "},
      {"slider", [](Host& host) { gesture::key(host.slider, 0x01000014); }, "close done gone "},
      {"shortcut", [](Host& host) { gesture::shortcut(host, "Cmd+W"); }, "close done gone "},
      {"command", [](Host&) { Application::current().dispatch("close"); }, "close done gone "},
  };
  for (const auto& row : rows) {
    Host& host = open();
    host.button.Action = [&host] { host.closeAndGoOn(); };
    host.slider.ValueChanged = [&host] { host.closeAndGoOn(); };
    host.second.MouseDown = [&host](Int32, Int32) {
      host.closeAndGoOn();
      return true;
    };
    row.close(host);
    processEvents();
    EXPECT_EQ(log, row.log) << row.way;
    EXPECT_TRUE(Application::current().openWindows().empty()) << row.way;
  }
}

TEST_F(ControlTest, ReturnPressesTheButtonThatHasTheKeyboardAndEscapeLeavesAModalWindow) {
  class Modal : public Window {
   public:
    Modal() : Window({.title = "Modal", .width = 50, .height = 50, .frame = WindowFrame::movableModal}) {
      button.TabStop = true;
      button.Action = [this] { ++presses; };
    }
    PushButton button{*this, "button"};
    int presses = 0;
  };
  const Ref<Modal> modal = New<Modal>();
  modal->Show();
  gesture::key(modal->button, Qt::Key_Return);
  EXPECT_EQ(modal->presses, 1);
  EXPECT_TRUE(modal->isOpen());
  gesture::key(modal->button, Qt::Key_Escape);
  EXPECT_FALSE(modal->isOpen());
  EXPECT_EQ(modal->presses, 1);
  Host& host = open();
  gesture::key(host.second, Qt::Key_Escape);
  EXPECT_TRUE(host.isOpen()) << "no other window";
}

TEST_F(ControlTest, AWindowThatIsReferredToOutlivesItsCloseAndOpensAgain) {
  const Ref<Host> window(&open());
  window->Close();
  processEvents();
  EXPECT_EQ(log, "close ");
  window->Show();
  window->Close();
  EXPECT_EQ(log, "close close ");
}

TEST_F(ControlTest, TheProgramQuitsWithItsLastWindowOrByItsItem) {
  Host* const windows[] = {&open(), &open()};
  runUntilQuit([&windows] {
    for (Host* each : windows)
      each->Close();
  });
  EXPECT_EQ(log, "close gone close gone ");
  Host& host = open();
  runUntilQuit([&host] { gesture::shortcut(host, "Cmd+Q"); });
}

TEST_F(ControlTest, ADefaultWindowIsTheSameUntilItIsClosed) {
  class Lone : public Window {
   public:
    Lone() : Window({.title = "Lone", .width = 50, .height = 50}) {}
  };
  const auto lone = [] { return Application::current().defaultWindowOrNew<Lone>(); };
  const Ref<Lone> first = lone();
  const Ref<Lone> another = New<Lone>();
  another->Show();
  EXPECT_EQ(lone(), first);
  first->Close();
  EXPECT_FALSE(Application::current().defaultWindow<Lone>());
  EXPECT_FALSE(lone() == first || lone() == another);
  EXPECT_EQ(Application::current().openWindows().size(), 2u);
}

TEST_F(ControlTest, ACommandThatTheWindowRefusesGoesToTheApplication) {
  Host& host = open();
  EXPECT_TRUE(Application::current().dispatch("refused"));
  EXPECT_EQ(log, "window application ");
  log.clear();
  gesture::shortcut(host, "Cmd+N");
  EXPECT_EQ(log, "") << "a disabled item's shortcut does nothing";
}

TEST_F(ControlTest, AnItemWithoutAutomaticEnablingIsTheProgramsOwn) {
  item("nobody").AutoEnable = false;
  item("nobody").Enabled = true;
  item("close").AutoEnable = false;
  item("close").Enabled = false;
  Host& host = open();
  EXPECT_TRUE(item("nobody").Enabled);
  gesture::shortcut(host, "Cmd+W");
  EXPECT_TRUE(host.isOpen());
}

TEST_F(ControlTest, ShortcutsNameThePlatformsKeys) {
  const struct {
    const char* text;
    const char* keys;
  } rows[] = {{"Cmd+N", "Ctrl+N"}, {"Cmd+Shift+N", "Ctrl+Shift+N"}, {"Cmd+Option+P", "Ctrl+Alt+P"}, {"", ""}};
  for (const auto& row : rows)
    EXPECT_EQ(toKeySequence(row.text).toString(QKeySequence::PortableText).toStdString(), row.keys);
}

TEST_F(ControlTest, TheContentHasTheWindowsSizeBelowOneMenuBar) {
  Host& host = open();
  const auto bars = [&host] { return host.native().findChildren<QMenuBar*>(Qt::FindDirectChildrenOnly); };
  const auto expectSize = [&](int width, int height) {
    processEvents();
    EXPECT_EQ(host.content().size(), QSize(width, height));
    EXPECT_EQ(host.native().width(), width);
    const int bar = bars().empty() ? 0 : bars().front()->height();
    EXPECT_EQ(host.native().height(), height + bar);
    EXPECT_EQ(host.content().y(), bar);
  };
  expectSize(100, 80);
  host.Height = 200;
  expectSize(100, 200);
  host.MenuBar = New<MenuBar>();
  expectSize(100, 200);
  EXPECT_EQ(bars().size(), 1);
  host.MenuBar = nullptr;
  expectSize(100, 200);
  EXPECT_EQ(bars().size(), 0);
}

TEST_F(ControlTest, ASliderKeepsItsValueInItsRangeAndTellsOfTheHandOnly) {
  Host& host = open();
  int changes = 0;
  host.slider.ValueChanged = [&changes] { ++changes; };
  host.slider.Value = 1000;
  EXPECT_EQ(host.slider.Value, 100);
  host.slider.Maximum = 60;
  EXPECT_EQ(host.slider.Value, 60);
  host.slider.Maximum = 100;
  host.slider.Value = 0;
  host.slider.Minimum = 20;
  EXPECT_EQ(host.slider.Value, 20);
  EXPECT_EQ(changes, 0);

  const struct {
    bool live;
    int during, after;
  } rows[] = {{true, 2, 2}, {false, 0, 1}};
  for (const auto& row : rows) {
    host.slider.Value = 20;
    host.slider.LiveScroll = row.live;
    changes = 0;
    gesture::press(host.slider, 6, 10);
    gesture::dragTo(host.slider, 40, 10);
    gesture::dragTo(host.slider, 60, 10);
    EXPECT_EQ(changes, row.during) << row.live;
    gesture::release(host.slider, 60, 10);
    EXPECT_EQ(changes, row.after) << row.live;
    EXPECT_GT(host.slider.Value, 50);
  }
}

TEST_F(ControlTest, ATextThatIsTooWideIsSetNarrower) {
  Host& host = open();
  host.label.Text = "Color: 112.171.255, 215.56.100, #70ABFF";
  const QWidget& widget = host.label.native();
  const auto wide = [&](const QFont& font) {
    return QFontMetrics(font).horizontalAdvance(QString::fromStdString(host.label.Text));
  };
  host.label.Width = 1000;
  const QFont base = widget.font();
  const int natural = wide(base);
  for (int width = natural + 10; width > natural * 7 / 10; --width) {
    host.label.Width = width;
    ASSERT_LE(wide(widget.font()), width) << natural;
    if (width >= natural) {
      ASSERT_EQ(widget.font(), base);
    }
  }
  host.label.Width = 10;
  EXPECT_GT(wide(widget.font()), natural / 2);
  host.label.Text = "1";
  EXPECT_EQ(widget.font(), base);
}

TEST_F(ControlTest, WhatIsDrawnAtAnyTimeIsShownAndKept) {
  Host& host = open();
  int paints = 0;
  host.second.Paint = [&paints](Graphics*) { ++paints; };
  host.second.Graphics().ForeColor = Color{0x123456};
  host.second.Graphics().FillRect(2, 3, 4, 5);
  const auto shown = [&host] { return host.native().grab().toImage(); };
  const QPoint inked = host.second.native().mapTo(&host.native(), QPoint(5, 7));
  EXPECT_TRUE(waitUntil([&] { return shown().pixelColor(inked) == QColor(0x123456); }));
  Host& above = open();
  above.Close();
  host.native().move(20, 20);
  host.native().resize(host.native().size());
  processEvents();
  EXPECT_EQ(paints, 0);
  EXPECT_EQ(host.second.Graphics().Pixel(5, 7), Color{0x123456});
  EXPECT_NE(host.second.Graphics().Pixel(6, 7), Color{0x123456});
  EXPECT_EQ(host.second.Graphics().Pixel(-1, 7), kBlack);
}

TEST_F(ControlTest, MoveComesOnlyWhileNoButtonIsHeld) {
  Host& host = open();
  host.second.MouseMove = [this](Int32, Int32) { log += "move "; };
  host.second.MouseDrag = [this](Int32, Int32) { log += "drag "; };
  host.second.MouseUp = [this](Int32, Int32) { log += "up "; };
  host.second.MouseDown = [](Int32, Int32) { return true; };
  gesture::press(host.second, 1, 1);
  // The release went elsewhere, to a dialog for instance.
  gesture::hover(host.second, 2, 2);
  gesture::release(host.second, 2, 2);
  EXPECT_EQ(log, "move ");
}

// Twice, since each program is to be told.
class UnreadableScreen : public ControlTest, public ::testing::WithParamInterface<int> {};

TEST_P(UnreadableScreen, IsToldOnceInEachRunOfTheProgram) {
  fake().readable = false;
  System::Pixel(0, 0);
  System::Pixel(1, 1);
  EXPECT_TRUE(fake().messages.empty()) << "a thread may be asking";
  processEvents();
  EXPECT_EQ(fake().messages.size(), 1u);
}
INSTANTIATE_TEST_SUITE_P(Runs, UnreadableScreen, ::testing::Range(0, 3));

TEST_F(ControlTest, AFaultInAHandlerIsToldOnceAndEndsTheProgramWithStatusOne) {
  Host& host = open();
  Host& other = open();
  host.button.Action = [] { Ref<Host>()->Close(); };
  runUntilQuit([&] {
    gesture::click(host.button, 5, 5);
    gesture::click(host.button, 5, 5);
    gesture::closeByFrame(other);
  });
  EXPECT_EQ(log, "") << "no handler is entered after a fault";
  ASSERT_EQ(fake().messages.size(), 1u);
}

}  // namespace
}  // namespace tavrelkin
