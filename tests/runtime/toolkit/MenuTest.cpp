// Menu items as the user sees them and chooses them by key.

#include <QImage>
#include <QMenu>
#include <QMenuBar>

#include "fakes/Gestures.h"
#include "fakes/RuntimeTest.h"
#include "runtime/toolkit/Application.h"
#include "runtime/toolkit/widgets/WindowWidget.h"

namespace tavrelkin {
namespace {

class Host : public Window {
 public:
  Host() : Window({.title = "Host", .width = 100, .height = 80}) { MenuBar = Application::current().MenuBar; }
  void AddMenuHandlers() override {
    addMenuHandler("mark", [this] { return ++chosen > 0; });
  }
  int chosen = 0;
};

class MenuTest : public RuntimeTest {
 protected:
  MenuTest() {
    const Ref<MenuItem> menu = New<MenuItem>("menu", "Menu");
    menu->Append(mark);
    Application::current().MenuBar = New<MenuBar>();
    Application::current().MenuBar->Append(menu);
    window = New<Host>();
    window->Show();
  }

  QMenu& menu() const { return *window->native().findChild<QMenuBar*>()->actions().constFirst()->menu(); }

  const Ref<MenuItem> mark = New<MenuItem>("mark", "Mark", "Cmd+M");
  Ref<Host> window;
};

TEST_F(MenuTest, AnItemThatIsUnmarkedAgainLooksAsBefore) {
  const QImage unmarked = menu().grab().toImage();
  mark->Checked = true;
  EXPECT_NE(menu().grab().toImage(), unmarked);
  mark->Checked = false;
  EXPECT_EQ(menu().grab().toImage(), unmarked);
}

TEST_F(MenuTest, AKeyThatIsHeldChoosesAnItemOnce) {
  gesture::holdShortcut(*window, "Cmd+M", 3);
  EXPECT_EQ(window->chosen, 1);
}

}  // namespace
}  // namespace tavrelkin
