#include "app/App.h"
#include "app/frmAbout.h"
#include "app/menubar/MenuBar1.h"
#include "support/Gestures.h"
#include "support/RuntimeTest.h"
#include "toolwindow/frmVesk.h"

namespace tavrelkin {
namespace {

class AppTest : public RuntimeTest {
 protected:
  AppTest() { start(New<App>()); }

  static const std::vector<Ref<Window>>& open() { return Application::current().openWindows(); }
  static frmVesk& front() { return dynamic_cast<frmVesk&>(*Application::current().frontWindow()); }
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
constexpr std::initializer_list<const char*> kAlways = {"mnuNewVeskWindow", "mnuAbout", "FileQuit"};

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
