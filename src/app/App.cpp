#include "app/App.h"

#include "app/frmAbout.h"
#include "app/menubar/MenuBar1.h"
#include "color/zrColorLib.h"
#include "toolwindow/frmVesk.h"

namespace tavrelkin {

App::App() {
  MenuBar = MenuBar1::Instance();
}

void App::AddMenuHandlers() {
  addMenuHandler("mnuNewVeskWindow", [this] { return mnuNewVeskWindow(); });
  addMenuHandler("mnuAbout", [this] { return mnuAbout(); });
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

}  // namespace tavrelkin
