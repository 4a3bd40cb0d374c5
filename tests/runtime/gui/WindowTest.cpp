#include <string>

#include "runtime/gui/Application.h"
#include "runtime/gui/Canvas.h"
#include "runtime/gui/Window.h"
#include "support/Gestures.h"
#include "support/RuntimeTest.h"

namespace tavrelkin {
namespace {

// A window that answers the commands it is made for and writes down what happens to it.
class Host : public Window {
 public:
  Host(std::string& events, std::string commandNames)
      : Window({.title = "Host", .width = 100, .height = 100}), log(events), commands(std::move(commandNames)) {
    MenuBar = Application::current().MenuBar;
  }
  void AddMenuHandlers() override {
    for (const char each : commands) {
      addMenuHandler(String(1, each), [this, each] {
        log += String("window:") + each + " ";
        return true;
      });
    }
  }

  std::string& log;
  std::string commands;
};

class Commands : public Application {
 public:
  explicit Commands(std::string& events) : log(events) {
    const Ref<tavrelkin::MenuBar> bar = New<tavrelkin::MenuBar>();
    const Ref<MenuItem> menu = New<MenuItem>("menu", "Menu");
    menu->Append(New<MenuItem>("a", "A", "Cmd+A"));
    menu->Append(New<MenuItem>("separator", "-"));
    menu->Append(New<MenuItem>("b", "B", "Cmd+B"));
    menu->Append(New<MenuItem>("c", "C", "Cmd+B"));
    bar->Append(menu);
    MenuBar = bar;
  }
  void AddMenuHandlers() override {
    addMenuHandler("a", [this] {
      log += "application:a ";
      return true;
    });
    enableMenuItems();
  }
  std::string& log;
};

class WindowTest : public RuntimeTest {
 protected:
  WindowTest() { start(New<Commands>(log)); }
  Ref<Host> open(const char* commands) {
    Ref<Host> window = New<Host>(log, commands);
    window->Show();
    return window;
  }
  bool enabled(const char* name) { return Application::current().MenuBar->Child(name)->Enabled; }
  std::string log;
};

TEST_F(WindowTest, AnItemIsEnabledForTheFrontWindowOrTheApplication) {
  EXPECT_TRUE(enabled("a"));
  EXPECT_FALSE(enabled("b"));
  const Ref<Host> first = open("b");
  EXPECT_TRUE(enabled("b"));
  const Ref<Host> second = open("c");
  EXPECT_FALSE(enabled("b"));
  EXPECT_TRUE(enabled("c"));
  second->Close();
  EXPECT_TRUE(enabled("b"));
}

TEST_F(WindowTest, ACommandGoesToTheFrontWindowFirst) {
  const Ref<Host> first = open("ab");
  const Ref<Host> second = open("c");
  log.clear();
  gesture::shortcut(*second, "Cmd+A");
  gesture::shortcut(*second, "Cmd+B");
  EXPECT_EQ(log, "application:a window:c ") << "of two items with one shortcut, the enabled one";
  log.clear();
  first->SetFocus();
  gesture::shortcut(*first, "Cmd+A");
  gesture::shortcut(*first, "Cmd+B");
  EXPECT_EQ(log, "window:a window:b ");
}

TEST_F(WindowTest, OpenComesForTheControlsInTheirOrderThenForTheWindow) {
  struct Opening : Window {
    explicit Opening(std::string& events) : Window({.title = "Opening", .width = 50, .height = 50}), log(events) {
      second.Open = [this] { log += "second "; };
      first.Open = [this] { log += "first "; };
    }
    void Event_Open() override { log += "window "; }
    std::string& log;
    Canvas second{*this, "second"};
    Canvas first{*this, "first"};
  };
  New<Opening>(log);
  EXPECT_EQ(log, "second first window ");
}

}  // namespace
}  // namespace tavrelkin
