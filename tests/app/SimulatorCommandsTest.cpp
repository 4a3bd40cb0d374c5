// The commands that open simulators, and what a simulator in front leaves enabled.

#include "app/App.h"
#include "app/menubar/MenuBar1.h"
#include "simulator/frmColorBlind.h"
#include "support/Gestures.h"
#include "support/RuntimeTest.h"
#include "toolwindow/frmVesk.h"

namespace tavrelkin {
namespace {

class SimulatorCommandsTest : public RuntimeTest {
 protected:
  SimulatorCommandsTest() { start(New<App>()); }

  static std::size_t openWindows() { return Application::current().openWindows().size(); }
  static void choose(const String& item) { EXPECT_TRUE(Application::current().dispatch(item)) << item; }
  // The simulator in front; nil where it is another window.
  static Ref<frmColorBlind> front() {
    return Ref<frmColorBlind>(dynamic_cast<frmColorBlind*>(Application::current().frontWindow()));
  }
};

TEST_F(SimulatorCommandsTest, TheToolsItemShowsOneSimulatorUntilItIsClosed) {
  choose("mnuColorBlindTool");
  const Ref<frmColorBlind> first = front();
  ASSERT_TRUE(first);
  frmVesk::Default()->Show();
  choose("mnuColorBlindTool");
  EXPECT_EQ(front(), first);
  EXPECT_EQ(openWindows(), 2u);

  first->SetValue(Color{0xFF0000});
  gesture::closeByFrame(*first);
  EXPECT_EQ(openWindows(), 1u);
  choose("mnuColorBlindTool");
  EXPECT_EQ(openWindows(), 2u);
  EXPECT_NE(front(), first);
  EXPECT_EQ(front()->lblColor.Text.get(), "-");
}

TEST_F(SimulatorCommandsTest, TheViewItemOpensAnotherSimulatorEachTimeUnlessAToolWindowIsInFront) {
  choose("mnuColorBlind");
  EXPECT_TRUE(frmVesk::Default()->flgShowColorBlind);
  EXPECT_EQ(openWindows(), 1u);

  choose("mnuColorBlindTool");
  const Ref<frmColorBlind> shared = front();
  gesture::shortcut(*shared, "Cmd+D");
  const Ref<frmColorBlind> second = front();
  choose("mnuColorBlind");
  EXPECT_EQ(openWindows(), 4u);
  EXPECT_TRUE(front() != second && front() != shared && second != shared);
  EXPECT_EQ(frmColorBlind::Default(), shared);
  EXPECT_TRUE(frmVesk::Default()->flgShowColorBlind);

  front()->SetValue(Color{0xFF0000});
  EXPECT_EQ(second->cmdColor[0].Value, kBlack);
  gesture::closeByFrame(*front());
  choose("mnuColorBlind");
  EXPECT_EQ(front()->cmdColor[0].Value, kBlack);
}

TEST_F(SimulatorCommandsTest, WithASimulatorInFrontOnlyPasteIsTheWindowsOwn) {
  choose("mnuColorBlindTool");
  const struct {
    const char* item;
    bool enabled;
  } rows[] = {{"EditPaste", true},         {"mnuColorBlind", true},
              {"mnuColorBlindTool", true}, {"mnuNewVeskWindow", true},
              {"mnuAbout", true},          {"FileQuit", true},
              {"mnuCloseWin", false},      {"mnuEditCopyHex", false},
              {"EditCopy", false},         {"mnuFollow", false},
              {"mnuPokeColor", false},     {"mnuLockX", false},
              {"mnuShowGuide", false},     {"mnuViewSuggestions", false},
              {"mnuShowColors", false},    {"mnuFavFromColors", false},
              {"mnuSaveClut", false},      {"mnuOpenCLUT", false}};
  for (const auto& [item, enabled] : rows)
    EXPECT_EQ(MenuBar1::Instance()->Child(item)->Enabled, enabled) << item;
  gesture::shortcut(*front(), "Cmd+W");
  EXPECT_TRUE(front()->isOpen());
}

}  // namespace
}  // namespace tavrelkin
