// The commands that choose what the preview shows.

#include "toolwindow/ToolWindowTest.h"

namespace tavrelkin {
namespace {

using CommandsTest = ToolWindowTest;

TEST_F(CommandsTest, OneViewAtATimeExceptWhileFollowing) {
  // S, J and D choose the three views, F follows, G shows the guides, and c clicks in the preview.
  const struct {
    const char* commands;
    const char* marks;
    bool repaints;  // the last command
  } rows[] = {
      {"SS", "", true},
      {"SJ", "mnuShowColors ", true},
      {"JJ", "", true},
      {"JD", "mnuColorBlind ", true},
      {"DD", "", true},
      {"DS", "mnuViewSuggestions ", true},
      {"DJ", "mnuShowColors ", true},
      {"SF", "mnuFollow ", false},
      {"DF", "mnuFollow mnuColorBlind ", false},
      {"FS", "mnuFollow mnuViewSuggestions ", true},
      {"FSF", "mnuViewSuggestions ", false},
      {"Sc", "", false},
      {"Dc", "mnuColorBlind ", false},
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

}  // namespace
}  // namespace tavrelkin
