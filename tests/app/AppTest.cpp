#include <functional>

#include <Qt>

#include "app/App.h"
#include "app/frmAbout.h"
#include "fakes/Gestures.h"
#include "fakes/RuntimeTest.h"
#include "fakes/TemporaryFolder.h"
#include "favourites/frmFav.h"
#include "menubar/MenuBar1.h"
#include "runtime/core/base/Exceptions.h"
#include "toolwindow/frmVesk.h"

namespace tavrelkin {
namespace {

class AppTest : public RuntimeTest {
 protected:
  AppTest() { start(New<App>()); }

  static const std::vector<Ref<Window>>& open() { return Application::current().openWindows(); }
  template <class Kind>
  static Kind& front() {
    return dynamic_cast<Kind&>(*Application::current().frontWindow());
  }
  // The names of the disabled items, in the order of the menus, each followed by a blank.
  static String greyItems(const std::vector<Ref<MenuItem>>& items) {
    String names;
    for (const Ref<MenuItem>& item : items) {
      if (!item->items().empty()) {
        names += greyItems(item->items());
      } else if (!item->isSeparator() && !item->Enabled) {
        names += item->Name() + " ";
      }
    }
    return names;
  }
  static void choose(const String& item) { EXPECT_TRUE(Application::current().dispatch(item)) << item; }
};

TEST_F(AppTest, WithTheDefaultWindowClosedTwoNewOnesComeUp) {
  choose("mnuNewVeskWindow");
  const Ref<frmVesk> other(&front<frmVesk>());
  other->setColor(Color{0x0000FF}, false);
  gesture::closeByFrame(*frmVesk::Default());
  choose("mnuNewVeskWindow");
  ASSERT_EQ(open().size(), 3u);
  for (const Ref<Window>& each : open()) {
    const bool isOther = each == Ref<Window>(other);
    EXPECT_EQ(dynamic_cast<frmVesk&>(*each).SelectedColor, Color{isOther ? 0x0000FFu : 0x70ABFFu});
  }
  EXPECT_EQ(frmVesk::Default().get(), &front<frmVesk>()) << "made last";
}

TEST_F(AppTest, AboutComesUpOnceUntilItIsClosed) {
  choose("mnuAbout");
  const Ref<frmAbout> about = frmAbout::Default();
  choose("mnuAbout");
  EXPECT_EQ(open().size(), 2u);
  gesture::click(about->PushButton1, 40, 10);
  EXPECT_FALSE(about->isOpen());
  choose("mnuAbout");
  EXPECT_NE(frmAbout::Default(), about);
  EXPECT_EQ(open().size(), 2u);
}

TEST_F(AppTest, ItemsAreEnabledByTheFrontWindow) {
  const String ofPalette = "mnuSaveClut mnuSaveAS ";
  const String ofTool = "mnuFollow mnuPokeColor mnuLock mnuLockX mnuLockY mnuFavFromColors ";
  const String ofToolsView = "mnuViewSuggestions mnuShowColors mnuShowGuide ";
  const String copies = "mnuEditCopyHex EditCopy ";
  // A command, and the items that are grey while the window that it opens is in front.
  const struct {
    const char* opens;
    String grey;
  } rows[] = {{"mnuAbout", "mnuCloseWin mnuOpenCLUT " + ofPalette + copies + "EditPaste " + ofTool + ofToolsView},
              {"mnuNewColors", "mnuOpenCLUT " + ofTool + ofToolsView},
              {"mnuColorBlindTool", "mnuCloseWin mnuOpenCLUT " + ofPalette + copies + ofTool + ofToolsView},
              {"mnuNewVeskWindow", "mnuOpenCLUT " + ofPalette}};
  for (const auto& row : rows) {
    choose(row.opens);
    EXPECT_EQ(greyItems(MenuBar1::Instance()->menus()), row.grey) << row.opens;
  }
  while (!open().empty())
    open().front()->Close();
  EXPECT_FALSE(Application::current().dispatch("mnuFollow"));
  choose("mnuNewColors");
}

// Both the tool window and the application have a handler for the command.
TEST_F(AppTest, ACommandGoesToTheFrontWindowFirst) {
  choose("mnuColorBlind");
  EXPECT_EQ(open().size(), 1u) << "the tool window shows a view";
  choose("mnuNewColors");
  for (const std::size_t count : {3u, 4u}) {
    choose("mnuColorBlind");
    EXPECT_EQ(open().size(), count) << "a palette, and a simulator, have none: a new simulator";
  }
  for (int i = 0; i < 2; ++i)
    choose("mnuColorBlindTool");
  EXPECT_EQ(open().size(), 5u) << "the same simulator each time";
}

TEST_F(AppTest, FavouritesThatCannotBeUsedAreTold) {
  const TemporaryFolder folder;
  fake().applicationData = folder.path("missing");
  choose("mnuMyFav");
  EXPECT_EQ(front<frmFav>().currFile->Name(), "Tavrelkin.aco");
  EXPECT_EQ(front<frmFav>().Title.get(), "Untitled Colors");
  const std::string place = folder.path("missing/Tavrelkin.aco");
  EXPECT_EQ(fake().messages.at(0), "The file \"" + place + "\" could not be made. The folder does not exist.");
  fake().applicationData = folder.path("");
  std::filesystem::create_directory(folder.path("Tavrelkin.aco"));
  choose("mnuMyFav");
  EXPECT_EQ(open().size(), 2u) << "the window has closed again";
  EXPECT_EQ(fake().messages.size(), 2u);
  fake().applicationData = "";
  EXPECT_THROW(dynamic_cast<App&>(Application::current()).mnuMyFav(), NilObjectException);
}

// The program while its About window is open.
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
      {"key", [](const Window& window) { gesture::keyIn(window, Qt::Key_Right); }},
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
