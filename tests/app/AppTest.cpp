#include "app/App.h"
#include "app/frmAbout.h"
#include "app/menubar/MenuBar1.h"
#include "favourites/frmFav.h"
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

  static void expectEnabled(bool on, std::initializer_list<const char*> items) {
    for (const char* item : items)
      EXPECT_EQ(MenuBar1::Instance()->Child(item)->Enabled, on) << item;
  }
};

constexpr std::initializer_list<const char*> kToolWindowItems = {
    "mnuCloseWin",        "mnuEditCopyHex", "EditCopy",    "EditPaste", "mnuFollow",
    "mnuPokeColor",       "mnuLock",        "mnuLockX",    "mnuLockY",  "mnuFavFromColors",
    "mnuViewSuggestions", "mnuShowColors",  "mnuShowGuide"};
constexpr std::initializer_list<const char*> kAlways = {"mnuNewVeskWindow", "mnuAbout", "mnuNewColors", "mnuMyFav",
                                                        "FileQuit"};

TEST_F(AppTest, StartsWithTheDefaultToolWindowAndTheOneMenuBar) {
  ASSERT_EQ(open().size(), 1u);
  EXPECT_EQ(open().front(), Ref<Window>(frmVesk::Default()));
  EXPECT_EQ(Application::current().MenuBar.get(), MenuBar1::Instance());
  EXPECT_EQ(front().MenuBar.get(), MenuBar1::Instance());
}

TEST_F(AppTest, ANewWindowHasTheDefaultWindowsColour) {
  frmVesk::Default()->setColor(Color{0xFF0000}, false);
  choose("mnuNewVeskWindow");
  front().setColor(Color{0x0000FF}, false);
  gesture::shortcut(front(), "Cmd+N");
  EXPECT_EQ(open().size(), 3u);
  EXPECT_EQ(front().SelectedColor, Color{0xFF0000});
  EXPECT_EQ(front().Title.get(), "Color: 255.0.0, #FF0000");
  EXPECT_EQ(front().Height, 262);
}

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
  EXPECT_EQ(about->Title.get(), "About");
  EXPECT_EQ(about->StaticText1.Text.get(), "Tavrelkin");
  EXPECT_EQ(about->StaticText2.Text.get().find("Version 3.0 Beta 02\rThe Tavrelkin developers\r"), 0u);
  EXPECT_FALSE(about->MenuBar.get());
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
  const Ref<frmVesk> tool = frmVesk::Default();
  expectEnabled(true, kAlways);
  expectEnabled(true, kToolWindowItems);
  expectEnabled(true, {"mnuColorBlind"});
  expectEnabled(false, {"mnuOpenCLUT", "mnuSaveClut", "mnuSaveAS"});

  choose("mnuAbout");
  expectEnabled(true, kAlways);
  expectEnabled(false, kToolWindowItems);
  EXPECT_FALSE(Application::current().dispatch("mnuFollow"));
  frmAbout::Default()->Close();
  expectEnabled(true, kToolWindowItems);

  choose("mnuNewColors");
  expectEnabled(true, kAlways);
  expectEnabled(true, {"mnuSaveClut", "mnuSaveAS", "mnuEditCopyHex", "EditCopy", "EditPaste", "mnuCloseWin"});
  expectEnabled(true, {"mnuColorBlind"});
  expectEnabled(false, {"mnuOpenCLUT", "mnuFollow", "mnuPokeColor", "mnuLock", "mnuLockX", "mnuLockY",
                        "mnuFavFromColors", "mnuViewSuggestions", "mnuShowColors", "mnuShowGuide"});
  choose("mnuCloseWin");
  expectEnabled(true, kToolWindowItems);

  tool->Close();
  EXPECT_TRUE(open().empty());
  expectEnabled(true, kAlways);
  expectEnabled(false, kToolWindowItems);
  expectEnabled(false, {"mnuOpenCLUT", "mnuSaveClut", "mnuSaveAS"});
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

TEST_F(AppTest, EachNewPaletteIsAnotherOne) {
  choose("mnuNewColors");
  const Ref<frmFav> first = frontFavourites();
  ASSERT_TRUE(first);
  gesture::shortcut(*first, "Cmd+Shift+N");
  EXPECT_EQ(open().size(), 3u);
  EXPECT_NE(frontFavourites(), first);
  EXPECT_NE(frontFavourites()->TheClut, first->TheClut);
  EXPECT_EQ(first->Title.get(), "Untitled Colors");
  EXPECT_FALSE(first->currFile);
}

TEST_F(AppTest, TheFavouritesAreMadeAtTheirFirstUseAndReadFromThenOn) {
  const TemporaryFolder folder;
  fake().applicationData = folder.path("");
  choose("mnuMyFav");
  const Ref<frmFav> first = frontFavourites();
  ASSERT_TRUE(first);
  EXPECT_EQ(folder.names(), std::vector<std::string>{"Tavrelkin.aco"});
  EXPECT_EQ(folder.read("Tavrelkin.aco"), "");
  EXPECT_EQ(first->Title.get(), "Untitled Colors");
  EXPECT_EQ(first->TheClut->Count, 255);

  choose("mnuMyFav");
  EXPECT_EQ(frontFavourites()->Title.get(), "Tavrelkin.aco");
  EXPECT_EQ(frontFavourites()->TheClut->Count, 0) << "the file is still empty";
  frontFavourites()->Close();

  first->Show();
  first->DoAddColor(Color{0xFF8000});
  gesture::shortcut(*first, "Cmd+S");
  EXPECT_EQ(first->Title.get(), "Tavrelkin.aco");
  choose("mnuMyFav");
  EXPECT_NE(frontFavourites(), first);
  EXPECT_EQ(frontFavourites()->TheClut->Count, 256);
  EXPECT_EQ(frontFavourites()->TheClut->getColor(0), Color{0xFF8000});
  EXPECT_TRUE(fake().saveNames.empty());
  EXPECT_TRUE(fake().messages.empty());
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

TEST_F(AppTest, ClosingTheLastWindowEndsTheProgram) {
  choose("mnuNewVeskWindow");
  runUntilQuit([] {
    while (!open().empty())
      gesture::closeByFrame(front());
  });
  EXPECT_TRUE(open().empty());
}

}  // namespace
}  // namespace tavrelkin
