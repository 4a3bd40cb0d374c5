// The tool window's menu commands, but for following, locks and Poke.

#include "runtime/gui/Clipboard.h"
#include "toolwindow/ToolWindowTest.h"

namespace tavrelkin {
namespace {

using CommandsTest = ToolWindowTest;

TEST_F(CommandsTest, CopiesTheSelectedColourInTwoForms) {
  window->setColor(Color{0xFF8000}, false);
  window->view0_lblColor.Text = "the colour somewhere else";
  gesture::shortcut(*window, "Cmd+C");
  EXPECT_EQ(Clipboard().Text(), "#FF8000");
  gesture::shortcut(*window, "Cmd+Option+C");
  EXPECT_EQ(Clipboard().Text(), "Color: 255.128.0, 30.100.100, #FF8000");
}

TEST_F(CommandsTest, PastesWhatReadsAsAColour) {
  constexpr std::uint32_t unchanged = 0x123456;
  const struct {
    const char* text;
    std::uint32_t color;
  } rows[] = {
      {"#FF8000", 0xFF8000},
      {" \t#ff8000\r\n", 0xFF8000},
      {"#GGGGGG", 0x000000},
      {"255.128.0", 0xFF0000},
      {"1.5,2.5,3", 0x010203},
      {"300.0, -1.0, 16", 0xFF0010},
      {"Color: 112.171.255, #70ABFF", 0x000000},
      {"Any text. With two dots.", 0x000000},
      {"Color: 255.128.0, 30.100.100, #FF8000", unchanged},
      {"255, 128, 0", unchanged},
      {"FF8000", unchanged},
      {"#F80", unchanged},
      {"#FF80000", unchanged},
      {"1.5", unchanged},
      {"nonsense", unchanged},
      {"   ", unchanged},
      {"", unchanged},
  };
  for (const auto& [text, color] : rows) {
    window->setColor(Color{unchanged}, false);
    Clipboard().SetText(text);
    gesture::shortcut(*window, "Cmd+V");
    EXPECT_EQ(window->SelectedColor, Color{color}) << text;
    choose("EditPaste");  // reports itself as handled in any case
  }
  EXPECT_TRUE(fake().messages.empty());
}

TEST_F(CommandsTest, OneViewAtATimeExceptWhileFollowing) {
  // S, J and D choose the three views, F follows, G shows the guides, and c clicks in the preview.
  const struct {
    const char* commands;
    const char* marks;
    bool repaints;  // the last command
  } rows[] = {
      {"S", "mnuViewSuggestions ", true},
      {"SS", "", true},
      {"SJ", "mnuShowColors ", true},
      {"JJ", "", true},
      {"JD", "mnuColorBlind ", true},
      {"DD", "", true},
      {"DS", "mnuViewSuggestions ", true},
      {"JS", "mnuViewSuggestions ", true},
      {"DJ", "mnuShowColors ", true},
      {"SF", "mnuFollow ", false},
      {"JF", "mnuFollow ", false},
      {"DF", "mnuFollow mnuColorBlind ", false},
      {"FS", "mnuFollow mnuViewSuggestions ", true},
      {"FSF", "mnuViewSuggestions ", false},
      {"Sc", "", false},
      {"Jc", "", false},
      {"Dc", "mnuColorBlind ", false},
      {"G", "mnuShowGuide ", true},
      {"GG", "", true},
      {"DG", "mnuColorBlind mnuShowGuide ", true},
  };
  const struct {
    const char* item;
    bool frmVesk::*flag;
  } flags[] = {{"mnuFollow", &frmVesk::flgTrackMouse},
               {"mnuViewSuggestions", &frmVesk::flgShowSuggestions},
               {"mnuShowColors", &frmVesk::flgShowColorsInScreen},
               {"mnuColorBlind", &frmVesk::flgShowColorBlind},
               {"mnuShowGuide", &frmVesk::flgDrawGuide}};
  for (const auto& row : rows) {
    for (const auto& each : flags)
      window->MenuBar->Child(each.item)->Checked = false;
    window = New<frmVesk>();
    window->Show();
    Graphics& g = window->imgScreen.Graphics();
    for (const char command : String(row.commands)) {
      g.Pixel(10, 10, Color{0x010203});
      if (command == 'c') {
        gesture::click(window->imgScreen, 5, 5);
      } else {
        gesture::shortcut(*window, String("Cmd+") + command);
      }
    }
    EXPECT_EQ(marks(), row.marks) << row.commands;
    EXPECT_EQ(g.Pixel(10, 10) != Color{0x010203}, row.repaints) << row.commands;
    for (const auto& each : flags)
      EXPECT_EQ((*window).*each.flag, window->MenuBar->Child(each.item)->Checked.get()) << row.commands << each.item;
    window->Close();
  }
}

TEST_F(CommandsTest, GuidesAreMadeAnewWhenTheyAreTurnedOn) {
  const Ref<Picture> first = window->gridImage;
  choose("mnuShowGuide");
  const Ref<Picture> second = window->gridImage;
  EXPECT_NE(second, first);
  EXPECT_EQ(second->Width(), 409);
  EXPECT_EQ(second->Height(), 193);
  EXPECT_EQ(second->Mask(false)->Graphics().Pixel(408, 191), kBlack);
  EXPECT_EQ(second->Mask(false)->Graphics().Pixel(407, 191), kWhite);
  choose("mnuShowGuide");
  EXPECT_EQ(window->gridImage, second);
}

TEST_F(CommandsTest, TheFrontWindowTakesACommandBeforeTheApplication) {
  class Answering : public Application {
   public:
    void AddMenuHandlers() override {
      addMenuHandler("mnuColorBlind", [this] { return ++answered > 0; });
      enableMenuItems();
    }
    int answered = 0;
  };
  const Ref<MenuBar> bar = Application::current().MenuBar;
  window->Close();
  const Ref<Answering> application = New<Answering>();
  application->MenuBar = bar;
  start(application);
  choose("mnuColorBlind");
  EXPECT_EQ(application->answered, 1);
  EXPECT_EQ(marks(), "");
  EXPECT_FALSE(application->dispatch("mnuFollow"));

  window = New<frmVesk>();
  window->Show();
  choose("mnuColorBlind");
  EXPECT_EQ(application->answered, 1);
  EXPECT_EQ(marks(), "mnuColorBlind ");
}

}  // namespace
}  // namespace tavrelkin
