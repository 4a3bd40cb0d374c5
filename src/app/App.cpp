#include "app/App.h"

#include "app/frmAbout.h"
#include "color/zrColorLib.h"
#include "favourites/frmFav.h"
#include "menubar/MenuBar1.h"
#include "runtime/core/files/FolderItem.h"
#include "simulator/frmColorBlind.h"
#include "toolwindow/frmVesk.h"

namespace tavrelkin {

App::App() {
  MenuBar = MenuBar1::Instance();
}

void App::AddMenuHandlers() {
  addMenuHandler("mnuNewVeskWindow", [this] { return mnuNewVeskWindow(); });
  addMenuHandler("mnuAbout", [this] { return mnuAbout(); });
  addMenuHandler("mnuNewColors", [this] { return mnuNewColors(); });
  addMenuHandler("mnuMyFav", [this] { return mnuMyFav(); });
  addMenuHandler("mnuColorBlind", [this] { return mnuColorBlind(); });
  addMenuHandler("mnuColorBlindTool", [this] { return mnuColorBlindTool(); });
  enableMenuItems();
}

void App::MakeDefaultView() {
  frmVesk::Default();
}

void App::Event_Open() {
  InitializeSupport();
}

bool App::mnuNewVeskWindow() {
  const Ref<frmVesk> window = New<frmVesk>();
  window->Show();
  window->setColor(frmVesk::Default()->SelectedColor, false);
  return true;
}

bool App::mnuAbout() {
  frmAbout::Default()->Show();
  return true;
}

bool App::mnuNewColors() {
  const Ref<frmFav> window = New<frmFav>();
  window->Show();
  window->NewClut();
  return true;
}

bool App::mnuMyFav() {
  const Ref<frmFav> window = New<frmFav>();
  const Ref<FolderItem> file = SpecialFolder::ApplicationData()->Child("Tavrelkin.aco");
  window->Show();
  window->NewClut();
  if (file && file->Exists()) {
    window->ReadColors(file);
  } else {
    if (const Ref<TextOutputStream> stream = file->CreateTextFile()) stream->Close();
    window->currFile = file;
  }
  return true;
}

bool App::mnuColorBlind() {
  New<frmColorBlind>()->Show();
  return true;
}

bool App::mnuColorBlindTool() {
  frmColorBlind::Default()->Show();
  return true;
}

}  // namespace tavrelkin
