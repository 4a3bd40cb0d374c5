#include "app/menubar/MenuBar1.h"
#include "support/RuntimeTest.h"

namespace tavrelkin {
namespace {

using MenuBar1Test = RuntimeTest;

// The menus one under the other: name, text and shortcut of each row, the titles without indent.
String listing(const std::vector<Ref<MenuItem>>& items, const String& indent = "") {
  String lines;
  for (const Ref<MenuItem>& item : items) {
    lines += indent + item->Name() + "|" + item->Text() + "|" + item->KeyboardShortcut() + "\n";
    lines += listing(item->items(), indent + " ");
    EXPECT_TRUE(item->AutoEnable) << item->Name();
    EXPECT_FALSE(item->Checked) << item->Name();
  }
  return lines;
}

TEST_F(MenuBar1Test, HasEveryItemInItsPlace) {
  const Ref<MenuBar> bar = MenuBar1::Instance();
  EXPECT_EQ(listing(bar->menus()),
            "FileMenu|&File|\n"
            " mnuNewVeskWindow|New vesk|Cmd+N\n"
            " UntitledSeparator3|-|\n"
            " mnuCloseWin|Close|Cmd+W\n"
            " UntitledSeparator4|-|\n"
            " mnuNewColors|New colors...|Cmd+Shift+N\n"
            " mnuOpenCLUT|Open colors...|Cmd+O\n"
            " mnuSaveClut|Save colors|Cmd+S\n"
            " mnuSaveAS|Save colors as...|Cmd+Shift+S\n"
            " UntitledSeparator5|-|\n"
            " FileQuit|&Quit|Cmd+Q\n"
            "EditMenu|&Edit|\n"
            " mnuEditCopyHex|Copy|Cmd+C\n"
            " EditCopy|&Copy As String|Cmd+Option+C\n"
            " EditPaste|&Paste|Cmd+V\n"
            "mnuvesk|Vesk|\n"
            " mnuFollow|Follow mouse|Cmd+F\n"
            " mnuPokeColor|Poke|Cmd+Option+P\n"
            " UntitledSeparator0|-|\n"
            " mnuLock|Lock Position|Cmd+L\n"
            " mnuLockX|Lock X|Cmd+X\n"
            " mnuLockY|Lock Y|Cmd+Y\n"
            " UntitledSeparator1|-|\n"
            " mnuFavFromColors|Create colors...|\n"
            "mnuView|View|\n"
            " mnuAbout|About...|\n"
            " mnuViewSuggestions|Suggestions|Cmd+S\n"
            " mnuShowColors|Colors in preview|Cmd+J\n"
            " mnuColorBlind|Color Blind simulation|Cmd+D\n"
            " UntitledSeparator7|-|\n"
            " mnuShowGuide|Show guides|Cmd+G\n"
            " UntitledSeparator6|-|\n"
            " mnuMyFav|My Favorities colors...|\n"
            "mnuTool|Tools|\n"
            " mnuColorBlindTool|Color blind...|\n");
  EXPECT_EQ(MenuBar1::Instance(), bar);
  EXPECT_TRUE(dynamic_cast<QuitMenuItem*>(bar->Child("FileQuit").get()));
  EXPECT_TRUE(dynamic_cast<AppleMenuItem*>(bar->Child("mnuAbout").get()));
}

}  // namespace
}  // namespace tavrelkin
