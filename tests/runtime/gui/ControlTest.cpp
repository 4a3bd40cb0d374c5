// Controls as their window and the user see them, and how windows end.

#include <functional>
#include <string>

#include <QMenuBar>
#include <QWidget>

#include "runtime/gui/Application.h"
#include "runtime/gui/Canvas.h"
#include "runtime/gui/PushButton.h"
#include "runtime/gui/Slider.h"
#include "runtime/gui/StaticText.h"
#include "runtime/gui/Window.h"
#include "runtime/qt/WindowWidget.h"
#include "runtime/system/System.h"
#include "support/Gestures.h"
#include "support/RuntimeTest.h"

namespace tavrelkin {
namespace {

class Host : public Window {
 public:
  explicit Host(std::string& events) : Window({.title = "Host", .width = 100, .height = 80}), log(events) {
    MenuBar = Application::current().MenuBar;
    slider.place(0, 0, 100, 20);
    canvas.place(10, 30, 30, 20);
    button.place(50, 30, 40, 20);
    label.place(0, 60, 60, 20);
  }
  ~Host() override { log += "gone "; }
  void AddMenuHandlers() override {
    addMenuHandler("close", [this] {
      closeAndGoOn();
      return true;
    });
  }
  void Event_Close() override { log += "close "; }

  // What a handler may do that closes its window.
  void closeAndGoOn() {
    Close();
    canvas.Graphics().Pixel(0, 0, kBlack);
    label.Text = "closed";
    log += "done ";
  }

  std::string& log;
  Slider slider{*this, "slider"};
  Canvas canvas{*this, "canvas"};
  PushButton button{*this, "button"};
  StaticText label{*this, "label"};
};

class Commands : public Application {
 public:
  Commands() {
    const Ref<tavrelkin::MenuBar> bar = New<tavrelkin::MenuBar>();
    const Ref<MenuItem> menu = New<MenuItem>("menu", "Menu");
    menu->Append(New<MenuItem>("close", "Close", "Cmd+W"));
    bar->Append(menu);
    MenuBar = bar;
  }
};

// Outlives the windows, which write in it to the last.
struct Log {
  std::string log;
};

class ControlTest : protected Log, public RuntimeTest {
 protected:
  ControlTest() { start(New<Commands>()); }

  // A window that nobody but its being open keeps alive, with the events so far forgotten.
  Host& open() {
    const Ref<Host> window = New<Host>(log);
    window->Show();
    log.clear();
    return *window;
  }
};

TEST_F(ControlTest, AWindowClosesOnceAndGoesOnlyAfterTheHandlerThatClosedIt) {
  const struct {
    const char* way;
    std::function<void(Host&)> close;
    const char* log;
  } rows[] = {
      {"frame", [](Host& host) { gesture::closeByFrame(host); }, "close gone "},
      {"button", [](Host& host) { gesture::click(host.button, 5, 5); }, "close done gone "},
      {"mouse", [](Host& host) { gesture::press(host.canvas, 5, 5); }, "close done gone "},
      {"slider", [](Host& host) { gesture::key(host.slider, 0x01000014); }, "close done gone "},
      {"shortcut", [](Host& host) { gesture::shortcut(host, "Cmd+W"); }, "close done gone "},
      {"command", [](Host&) { Application::current().dispatch("close"); }, "close done gone "},
  };
  for (const auto& row : rows) {
    Host& host = open();
    host.button.Action = [&host] { host.closeAndGoOn(); };
    host.slider.ValueChanged = [&host] { host.closeAndGoOn(); };
    host.canvas.MouseDown = [&host](Int32, Int32) {
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
  gesture::key(host.canvas, Qt::Key_Escape);
  EXPECT_TRUE(host.isOpen()) << "no other window";
}

TEST_F(ControlTest, AWindowThatIsReferredToOutlivesItsCloseAndOpensAgain) {
  const Ref<Host> window = New<Host>(log);
  window->Show();
  window->Close();
  processEvents();
  EXPECT_EQ(log, "close ");
  window->Show();
  window->Close();
  EXPECT_EQ(log, "close close ");
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

// The release went elsewhere, to a dialog for instance.
TEST_F(ControlTest, AMoveWithNoButtonHeldEndsADrag) {
  Host& host = open();
  host.canvas.MouseDown = [](Int32, Int32) { return true; };
  host.canvas.MouseMove = [this](Int32, Int32) { log += "move "; };
  host.canvas.MouseUp = [this](Int32, Int32) { log += "up "; };
  gesture::press(host.canvas, 1, 1);
  gesture::hover(host.canvas, 2, 2);
  gesture::release(host.canvas, 2, 2);
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
