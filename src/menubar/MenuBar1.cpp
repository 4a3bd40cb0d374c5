#include "menubar/MenuBar1.h"

#include <array>
#include <span>

namespace tavrelkin {

namespace {

struct Item {
  const char* name;
  const char* text;
  const char* shortcut = "";
};

struct Menu {
  Item title;
  std::span<const Item> items;
};

constexpr std::array kFileItems{
    Item{"mnuNewVeskWindow", "New vesk", "Cmd+N"},
    Item{"UntitledSeparator3", "-"},
    Item{"mnuCloseWin", "Close", "Cmd+W"},
    Item{"UntitledSeparator4", "-"},
    Item{"mnuNewColors", "New colors...", "Cmd+Shift+N"},
    Item{"mnuOpenCLUT", "Open colors...", "Cmd+O"},
    Item{"mnuSaveClut", "Save colors", "Cmd+S"},
    Item{"mnuSaveAS", "Save colors as...", "Cmd+Shift+S"},
    Item{"UntitledSeparator5", "-"},
    Item{"FileQuit", "&Quit", "Cmd+Q"},
};
constexpr std::array kEditItems{
    Item{"mnuEditCopyHex", "Copy", "Cmd+C"},
    Item{"EditCopy", "&Copy As String", "Cmd+Option+C"},
    Item{"EditPaste", "&Paste", "Cmd+V"},
};
constexpr std::array kVeskItems{
    Item{"mnuFollow", "Follow mouse", "Cmd+F"},
    Item{"mnuPokeColor", "Poke", "Cmd+Option+P"},
    Item{"UntitledSeparator0", "-"},
    Item{"mnuLock", "Lock Position", "Cmd+L"},
    Item{"mnuLockX", "Lock X", "Cmd+X"},
    Item{"mnuLockY", "Lock Y", "Cmd+Y"},
    Item{"UntitledSeparator1", "-"},
    Item{"mnuFavFromColors", "Create colors..."},
};
constexpr std::array kViewItems{
    Item{"mnuAbout", "About..."},
    Item{"mnuViewSuggestions", "Suggestions", "Cmd+S"},
    Item{"mnuShowColors", "Colors in preview", "Cmd+J"},
    Item{"mnuColorBlind", "Color Blind simulation", "Cmd+D"},
    Item{"UntitledSeparator7", "-"},
    Item{"mnuShowGuide", "Show guides", "Cmd+G"},
    Item{"UntitledSeparator6", "-"},
    Item{"mnuMyFav", "My Favorities colors..."},
};
constexpr std::array kToolItems{
    Item{"mnuColorBlindTool", "Color blind..."},
};

constexpr std::array kMenus{
    Menu{{"FileMenu", "&File"}, kFileItems}, Menu{{"EditMenu", "&Edit"}, kEditItems},
    Menu{{"mnuvesk", "Vesk"}, kVeskItems},   Menu{{"mnuView", "View"}, kViewItems},
    Menu{{"mnuTool", "Tools"}, kToolItems},
};

Ref<MenuItem> make(const Item& item) {
  const String name = item.name;
  if (name == "FileQuit") return New<QuitMenuItem>(name, item.text, item.shortcut);
  if (name == "mnuAbout") return New<AppleMenuItem>(name, item.text);
  return New<MenuItem>(name, item.text, item.shortcut);
}

MenuBar1* instance = nullptr;

}  // namespace

MenuBar1::MenuBar1() {
  instance = this;
  for (const Menu& each : kMenus) {
    const Ref<MenuItem> menu = make(each.title);
    for (const Item& item : each.items)
      menu->Append(make(item));
    Append(menu);
  }
}

MenuBar1::~MenuBar1() {
  if (instance == this) instance = nullptr;
}

Ref<MenuBar> MenuBar1::Instance() {
  if (!instance) return New<MenuBar1>();
  return Ref<MenuBar>(instance);
}

}  // namespace tavrelkin
