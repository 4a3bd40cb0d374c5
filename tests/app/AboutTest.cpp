// The program while its About window is open.

#include <functional>

#include "app/App.h"
#include "app/frmAbout.h"
#include "fakes/Gestures.h"
#include "fakes/RuntimeTest.h"
#include "simulator/frmColorBlind.h"
#include "toolwindow/frmVesk.h"

namespace tavrelkin {
namespace {

constexpr int kKeyRight = 0x01000014;

class AboutTest : public RuntimeTest {
 protected:
  AboutTest() {
    start(New<App>());
    tool = frmVesk::Default();
    tool->cmdMixer[0].SetFocus();
    Application::current().dispatch("mnuAbout");
    about = frmAbout::Default();
  }

  static std::size_t openCount() { return Application::current().openWindows().size(); }
  static Ref<Window> front() { return Ref<Window>(Application::current().frontWindow()); }

  Ref<frmVesk> tool;
  Ref<frmAbout> about;
};

TEST_F(AboutTest, ComesBackWhateverTheUserDoesToAWindowThatWaitsForIt) {
  fake().screen = [](ScreenPoint) { return 0x123456u; };
  const std::pair<const char*, std::function<void(const Window&)>> ways[] = {
      {"click", [](const Window& window) { gesture::clickIn(window, 100, 100); }},
      {"key", [](const Window& window) { gesture::keyIn(window, kKeyRight); }},
      {"wheel", gesture::scrollIn},
      {"close", gesture::closeByFrame},
      {"shortcut", [](const Window& window) { gesture::holdShortcut(window, "Cmd+W", 0); }},
  };
  for (const auto& [name, reach] : ways) {
    gesture::minimise(*about);
    gesture::activate(*tool);
    reach(*tool);
    EXPECT_TRUE(gesture::isInFront(*about)) << name;
    EXPECT_TRUE(tool->isOpen()) << name;
    EXPECT_EQ(tool->SelectedColor, Color{0x70ABFF}) << name;
    EXPECT_EQ(front(), Ref<Window>(about)) << name;
  }
}

TEST_F(AboutTest, StaysMinimisedWhenTheDesktopGivesTheKeyboardToAnotherWindowUntilTheUserDoes) {
  ASSERT_TRUE(gesture::isInFront(*about));
  gesture::activate(*tool);
  EXPECT_TRUE(gesture::isInFront(*about)) << "from behind";
  gesture::minimise(*about);
  gesture::activate(*tool);
  EXPECT_FALSE(gesture::isInFront(*about));
  about->Close();
  EXPECT_EQ(front(), Ref<Window>(tool));
  gesture::clickIn(*tool, 100, 100);
  EXPECT_NE(tool->SelectedColor, Color{0x70ABFF}) << "free again";
}

TEST_F(AboutTest, LetsTheApplicationsShortcutsActAndTheWindowsThatTheyOpenBeUsed) {
  gesture::shortcut(*about, "Cmd+W");
  EXPECT_EQ(openCount(), 2u) << "no command of its own";
  gesture::shortcut(*about, "Cmd+D");
  EXPECT_EQ(openCount(), 3u);
  gesture::activate(*about);
  gesture::shortcut(*about, "Cmd+N");
  ASSERT_EQ(openCount(), 4u);
  const Ref<Window> opened = front();
  EXPECT_TRUE(gesture::isInFront(*opened));
  gesture::activate(*about);
  gesture::activate(*opened);
  gesture::shortcut(*opened, "Cmd+W");
  EXPECT_EQ(openCount(), 3u);
  EXPECT_TRUE(about->isOpen());
}

TEST_F(AboutTest, LetsTheProgramQuit) {
  EXPECT_EQ(runUntilQuit([this] { gesture::shortcut(*about, "Cmd+Q"); }), 0);
  EXPECT_EQ(openCount(), 0u);
}

}  // namespace
}  // namespace tavrelkin
