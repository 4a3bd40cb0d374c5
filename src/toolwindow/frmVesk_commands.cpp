// The tool window's menu commands, except those that choose a view, and the loop that follows the pointer.

#include "color/zrColorLib.h"
#include "controls/ColorDrag.h"
#include "runtime/core/concurrency/RuntimeBackgroundTask.h"
#include "runtime/core/system/System.h"
#include "runtime/toolkit/Clipboard.h"
#include "toolwindow/frmVesk.h"

namespace tavrelkin {

void frmVesk::AddMenuHandlers() {
  addMenuHandler("mnuFollow", [this] { return mnuFollow(); });
  addMenuHandler("mnuLockX", [this] { return mnuLockX(); });
  addMenuHandler("mnuLockY", [this] { return mnuLockY(); });
  addMenuHandler("mnuLock", [this] { return mnuLock(); });
  addMenuHandler("EditCopy", [this] { return EditCopy(); });
  addMenuHandler("EditPaste", [this] { return EditPaste(); });
  addMenuHandler("mnuEditCopyHex", [this] { return mnuEditCopyHex(); });
  addMenuHandler("mnuPokeColor", [this] { return mnuPokeColor(); });
  addMenuHandler("mnuShowGuide", [this] { return mnuShowGuide(); });
  addMenuHandler("mnuViewSuggestions", [this] { return mnuViewSuggestions(); });
  addMenuHandler("mnuShowColors", [this] { return mnuShowColors(); });
  addMenuHandler("mnuColorBlind", [this] { return mnuColorBlind(); });
  addMenuHandler("mnuCloseWin", [this] { return mnuCloseWin(); });
  addMenuHandler("mnuFavFromColors", [this] { return mnuFavFromColors(); });
}

MenuItem& frmVesk::menuItem(const char* name) const {
  return *MenuBar->Child(name);
}

bool frmVesk::mnuFollow() {
  if (flgTrackMouse) {
    flgTrackMouse = false;
    pokeMouse.Kill();
  } else {
    leaveColorViews();
    System::RequestScreen();
    rememberPointer();
    flgTrackMouse = true;
    pokeMouse.Run();
  }
  menuItem("mnuFollow").Checked = flgTrackMouse;
  return true;
}

void frmVesk::rememberPointer() {
  varLastY = System::MouseY();
  varLastX = System::MouseX();
}

// The loop has no pause and no rate: the scheduler decides when a yield returns. If the user is asked for permission
// first, the pointer's position is known only after the answer. Without the screen the loop ends.
void frmVesk::pokeMouse_Run() {
  if (!System::CanReadScreen() && System::AwaitScreen()) rememberPointer();
  while (flgTrackMouse && System::AwaitScreen()) {
    doTrackSysCursor();
    RuntimeBackgroundTask();
  }
  if (!flgTrackMouse) return;
  flgTrackMouse = false;
  menuItem("mnuFollow").Checked = false;
}

bool frmVesk::mnuLockX() {
  flgLockX = !flgLockX;
  varLastX = System::MouseX();
  menuItem("mnuLockX").Checked = flgLockX;
  return true;
}

bool frmVesk::mnuLockY() {
  flgLockY = !flgLockY;
  varLastY = System::MouseY();
  menuItem("mnuLockY").Checked = flgLockY;
  return true;
}

bool frmVesk::mnuLock() {
  const bool lock = flgLockX != flgLockY || !flgLockX;
  flgLockX = lock;
  flgLockY = lock;
  menuItem("mnuLock").Checked = lock;
  if (lock) rememberPointer();
  return true;
}

bool frmVesk::EditCopy() {
  Clipboard clipboard;
  clipboard.SetText(getStdColorString(SelectedColor));
  clipboard.Close();
  return true;
}

bool frmVesk::mnuEditCopyHex() {
  Clipboard clipboard;
  clipboard.SetText("#" + getHexStr(SelectedColor));
  clipboard.Close();
  return true;
}

bool frmVesk::EditPaste() {
  Color pasted = SelectedColor;
  if (ColorDrag::paste(pasted)) setColor(pasted, false);
  return true;
}

// The reference keeps the window alive, since it may be closed before the user has picked a colour.
bool frmVesk::requestScreen() {
  return System::RequestScreen([window = Ref<frmVesk>(this)](Color c) { window->setColor(c, false); });
}

// The locks hold the preview, not the colour that is taken.
bool frmVesk::mnuPokeColor() {
  if (!requestScreen()) return true;
  const Int32 x = System::MouseX();
  const Int32 y = System::MouseY();
  setColor(System::Pixel(x, y), false);
  doTrackSysCursor();
  return true;
}

bool frmVesk::mnuShowGuide() {
  flgDrawGuide = !flgDrawGuide;
  if (flgDrawGuide) drawGrid();
  imgScreen.Refresh(true);
  menuItem("mnuShowGuide").Checked = flgDrawGuide;
  return true;
}

bool frmVesk::mnuCloseWin() {
  flgTrackMouse = false;
  Close();
  return true;
}

bool frmVesk::mnuFavFromColors() {
  saveColorsInScreen();
  return true;
}

}  // namespace tavrelkin
