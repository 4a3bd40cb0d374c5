#include "app/App.h"
#include "app/frmAbout.h"
#include "favourites/frmFav.h"
#include "menubar/MenuBar1.h"
#include "runtime/base/Exceptions.h"
#include "support/Gestures.h"
#include "support/RuntimeTest.h"
#include "support/TemporaryFolder.h"
#include "toolwindow/frmVesk.h"

namespace tavrelkin {
namespace {

class AppTest : public RuntimeTest {
 protected:
  AppTest() { start(New<App>()); }

  static const std::vector<Ref<Window>>& open() { return Application::current().openWindows(); }
  static frmVesk& front() { return dynamic_cast<frmVesk&>(*Application::current().frontWindow()); }
  // The favourites window in front; nil where it is another window.
  static Ref<frmFav> frontFavourites() {
    return Ref<frmFav>(dynamic_cast<frmFav*>(Application::current().frontWindow()));
  }
  static void choose(const String& item) { EXPECT_TRUE(Application::current().dispatch(item)) << item; }
};

TEST_F(AppTest, WithTheDefaultWindowClosedTwoNewOnesComeUp) {
  choose("mnuNewVeskWindow");
  front().setColor(Color{0x0000FF}, false);
  const Ref<frmVesk> other(&front());
  frmVesk::Default()->setColor(Color{0xFF0000}, false);
  gesture::closeByFrame(*frmVesk::Default());
  EXPECT_EQ(open().size(), 1u);

  choose("mnuNewVeskWindow");
  ASSERT_EQ(open().size(), 3u);
  for (const Ref<Window>& each : open()) {
    const bool isOther = each == Ref<Window>(other);
    EXPECT_EQ(dynamic_cast<frmVesk&>(*each).SelectedColor, Color{isOther ? 0x0000FFu : 0x70ABFFu});
  }
  EXPECT_NE(frmVesk::Default(), other);
  EXPECT_EQ(frmVesk::Default().get(), &front());  // made last
  EXPECT_EQ(open().size(), 3u);
}

TEST_F(AppTest, AboutComesUpOnceUntilItIsClosed) {
  choose("mnuAbout");
  const Ref<frmAbout> about = frmAbout::Default();
  choose("mnuAbout");
  EXPECT_EQ(frmAbout::Default(), about);
  EXPECT_EQ(open().size(), 2u);

  gesture::click(about->PushButton1, 40, 10);
  EXPECT_FALSE(about->isOpen());
  EXPECT_EQ(open().size(), 1u);
  choose("mnuAbout");
  EXPECT_NE(frmAbout::Default(), about);
  EXPECT_EQ(open().size(), 2u);
}

TEST_F(AppTest, ItemsAreEnabledByTheFrontWindow) {
  const struct {
    const char* opens;
    bool follows, saves, closes;
  } rows[] = {{"mnuAbout", false, false, false},
              {"mnuNewColors", false, true, true},
              {"mnuColorBlindTool", false, false, false},
              {"mnuNewVeskWindow", true, false, true}};
  for (const auto& [opens, follows, saves, closes] : rows) {
    choose(opens);
    for (const auto& [item, enabled] :
         {std::pair{"mnuFollow", follows}, {"mnuSaveClut", saves}, {"mnuCloseWin", closes}, {"mnuOpenCLUT", false}})
      EXPECT_EQ(MenuBar1::Instance()->Child(item)->Enabled, enabled) << opens << item;
  }
  while (!open().empty())
    open().front()->Close();
  EXPECT_FALSE(Application::current().dispatch("mnuFollow"));
  choose("mnuNewColors");
}

TEST_F(AppTest, TheToolsItemShowsOneSimulatorAndTheViewItemAnotherEachTimeUnlessAToolWindowIsInFront) {
  const auto front = [] { return Application::current().frontWindow(); };
  choose("mnuColorBlind");
  EXPECT_EQ(open().size(), 1u);
  choose("mnuColorBlindTool");
  const Window* const shared = front();
  gesture::shortcut(*shared, "Cmd+D");
  choose("mnuColorBlind");
  EXPECT_EQ(open().size(), 4u);
  choose("mnuColorBlindTool");
  EXPECT_EQ(front(), shared);
  gesture::closeByFrame(*shared);
  choose("mnuColorBlindTool");
  EXPECT_EQ(open().size(), 4u);
}

TEST_F(AppTest, TheSharedShortcutGoesToTheEnabledItem) {
  for (const bool on : {true, false}) {
    gesture::shortcut(front(), "Cmd+S");
    EXPECT_EQ(front().flgShowSuggestions, on);
  }
  choose("mnuNewVeskWindow");
  gesture::shortcut(front(), "Cmd+S");
  EXPECT_TRUE(front().flgShowSuggestions);
  EXPECT_FALSE(frmVesk::Default()->flgShowSuggestions);
}

TEST_F(AppTest, FavouritesThatCannotBeUsedAreTold) {
  const TemporaryFolder folder;
  fake().applicationData = folder.path("missing");
  choose("mnuMyFav");
  ASSERT_EQ(fake().messages.size(), 1u);
  EXPECT_NE(fake().messages[0].find("The folder does not exist."), std::string::npos);
  EXPECT_EQ(frontFavourites()->currFile->Name(), "Tavrelkin.aco");
  EXPECT_EQ(frontFavourites()->Title.get(), "Untitled Colors");

  fake().messages.clear();
  fake().applicationData = folder.path("");
  std::filesystem::create_directory(folder.path("Tavrelkin.aco"));
  choose("mnuMyFav");
  EXPECT_EQ(fake().messages, std::vector<std::string>{"Unable to read color swatch"});
  EXPECT_EQ(open().size(), 2u) << "the window has closed again";

  fake().applicationData = "";
  EXPECT_THROW(dynamic_cast<App&>(Application::current()).mnuMyFav(), NilObjectException);
}

}  // namespace
}  // namespace tavrelkin
