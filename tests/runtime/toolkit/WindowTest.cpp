// Windows and their controls under the gestures of a user, and the end of windows.

#include <functional>
#include <string>

#include <QImage>
#include <QMenu>
#include <QMenuBar>
#include <QWidget>

#include "fakes/Gestures.h"
#include "fakes/RuntimeTest.h"
#include "runtime/toolkit/Application.h"
#include "runtime/toolkit/Buttons.h"
#include "runtime/toolkit/Canvas.h"
#include "runtime/toolkit/Slider.h"
#include "runtime/toolkit/widgets/WindowWidget.h"

namespace tavrelkin {
namespace {

// A window that logs its events. Its command, its button, its slider and its canvas all close it.
class Host : public Window {
 public:
  explicit Host(std::string& events, WindowFrame frame = WindowFrame::document)
      : Window({.title = "Host", .width = 100, .height = 80, .frame = frame}), log(events) {
    MenuBar = Application::current().MenuBar;
    slider.place(0, 0, 100, 20);
    canvas.place(10, 30, 30, 20);
    button.place(50, 30, 40, 20);
    slider.ValueChanged = [this] { closeAndGoOn(); };
    button.Action = [this] { closeAndGoOn(); };
    canvas.Open = [this] { log += "canvas "; };
    second.Open = [this] { log += "second "; };
    canvas.MouseDown = [this](Int32, Int32) { return closeAndGoOn(); };
  }
  ~Host() override { log += "gone "; }
  void AddMenuHandlers() override {
    addMenuHandler("close", [this] { return closeAndGoOn(); });
    addMenuHandler("mark", [this] {
      log += "marked ";
      return true;
    });
  }
  void Event_Open() override { log += "window "; }
  void Event_Close() override { log += "close "; }

  // Closes the window and then still uses its controls, as a handler may.
  bool closeAndGoOn() {
    Close();
    canvas.Graphics().Pixel(0, 0, kBlack);
    button.Caption = "closed";
    log += "done ";
    return true;
  }

  std::string& log;
  Slider slider{*this, "slider"};
  Canvas canvas{*this, "canvas"};
  Canvas second{*this, "second"};
  PushButton button{*this, "button"};
};

class WindowTest : protected Log, public RuntimeTest {
 protected:
  WindowTest() {
    const Ref<MenuItem> menu = New<MenuItem>("menu", "Menu");
    menu->Append(New<MenuItem>("close", "Close", "Cmd+W"));
    menu->Append(mark);
    Application::current().MenuBar = New<MenuBar>();
    Application::current().MenuBar->Append(menu);
  }

  // Opens a window, and clears the log.
  Ref<Host> open(WindowFrame frame = WindowFrame::document) {
    Ref<Host> window = New<Host>(log, frame);
    window->Show();
    log.clear();
    return window;
  }

  const Ref<MenuItem> mark = New<MenuItem>("mark", "Mark", "Cmd+M");
};

TEST_F(WindowTest, OpenComesForTheControlsInTheirOrderThenForTheWindow) {
  New<Host>(log);
  EXPECT_EQ(log, "canvas second window gone ");
}

TEST_F(WindowTest, AWindowClosesOnceAndGoesOnlyAfterTheHandlerThatClosedIt) {
  const struct {
    const char* way;
    std::function<void(Host&)> close;
    const char* log;
  } rows[] = {
      {"frame", [](Host& host) { gesture::closeByFrame(host); }, "close gone "},
      {"button", [](Host& host) { gesture::click(host.button, 5, 5); }, "close done gone "},
      {"mouse", [](Host& host) { gesture::press(host.canvas, 5, 5); }, "close done gone "},
      {"slider", [](Host& host) { gesture::key(host.slider, Qt::Key_Right); }, "close done gone "},
      {"shortcut", [](Host& host) { gesture::shortcut(host, "Cmd+W"); }, "close done gone "},
  };
  for (const auto& row : rows) {
    Host& nobodys = *open();
    row.close(nobodys);
    processEvents();
    EXPECT_EQ(log, row.log) << row.way;
    EXPECT_TRUE(Application::current().openWindows().empty()) << row.way;
    EXPECT_FALSE(Application::current().MenuBar->Child("close")->Enabled) << row.way;
  }
}

TEST_F(WindowTest, ReturnPressesTheButtonThatHasTheKeyboardAndEscapeLeavesAModalWindowThatMayOpenAgain) {
  const Ref<Host> modal = open(WindowFrame::movableModal);
  modal->button.TabStop = true;
  modal->button.Action = [this] { log += "pressed "; };
  gesture::key(modal->button, Qt::Key_Return);
  gesture::key(modal->button, Qt::Key_Escape);
  EXPECT_FALSE(modal->isOpen());
  modal->Show();
  modal->Close();
  EXPECT_EQ(log, "pressed close close ");
  const Ref<Host> other = open();
  gesture::key(other->button, Qt::Key_Escape);
  EXPECT_EQ(log, "") << "no other window";
}

TEST_F(WindowTest, AMenuItemThatIsUnmarkedAgainLooksAsBefore) {
  const Ref<Host> host = open();
  QMenu& menu = *host->native().findChild<QMenuBar*>()->actions().constFirst()->menu();
  const QImage unmarked = menu.grab().toImage();
  mark->Checked = true;
  EXPECT_NE(menu.grab().toImage(), unmarked);
  mark->Checked = false;
  EXPECT_EQ(menu.grab().toImage(), unmarked);
}

TEST_F(WindowTest, AKeyThatIsHeldChoosesAMenuItemOnce) {
  const Ref<Host> host = open();
  gesture::holdShortcut(*host, "Cmd+M", 3);
  EXPECT_EQ(log, "marked ");
}

TEST_F(WindowTest, TheContentHasTheWindowsSizeBelowTheMenuBar) {
  const Ref<Host> host = open();
  host->Height = 200;
  processEvents();
  const int bar = host->content().y();
  EXPECT_GT(bar, 0);
  EXPECT_EQ(host->content().geometry(), QRect(0, bar, 100, 200));
  EXPECT_EQ(host->native().size(), QSize(100, 200 + bar));
}

TEST_F(WindowTest, AFaultInAHandlerIsToldOnceAndEndsTheProgramWithStatusOne) {
  const Ref<Host> host = open();
  const Ref<Host> other = open();
  host->button.Action = [] { Ref<Host>()->Close(); };
  const int status = runUntilQuit([&] {
    gesture::click(host->button, 5, 5);
    gesture::click(host->button, 5, 5);
    gesture::closeByFrame(*other);
  });
  EXPECT_EQ(status, 1);
  EXPECT_EQ(log, "") << "no handler is entered after a fault";
  EXPECT_EQ(fake().messages.size(), 1u);
}

}  // namespace
}  // namespace tavrelkin
