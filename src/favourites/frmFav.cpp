#include "favourites/frmFav.h"

#include "color/zrColorLib.h"
#include "controls/ColorDrag.h"
#include "menubar/MenuBar1.h"
#include "runtime/core/files/FolderItem.h"
#include "runtime/core/system/Dialogs.h"
#include "runtime/toolkit/Clipboard.h"

namespace tavrelkin {

frmFav::frmFav() : Window({.title = "Favorities", .width = 431, .height = 161}) {
  BackColor = Color{0xCCCCCC};
  imgClut.place(20, 7, 391, 105);
  lblColor.place(134, 124, 236, 20);
  cRect.place(20, 124, 102, 17);
  lblColor.TextFont = "Helvetica";
  lblColor.TextSize = 10;
  lblColor.Text = "- -";
  imgClut.TabStop = true;
  imgClut.AccessibleName = "Palette";
  cRect.AccessibleName = "Selected color";
  imgClut.Action = [this](Int32 index, Color c) { imgClut_Action(index, c); };
  MenuBar = MenuBar1::Instance();
}

void frmFav::AddMenuHandlers() {
  addMenuHandler("mnuSaveClut", [this] { return mnuSaveClut(); });
  addMenuHandler("mnuSaveAS", [this] { return mnuSaveAS(); });
  addMenuHandler("mnuEditCopyHex", [this] { return mnuEditCopyHex(); });
  addMenuHandler("EditCopy", [this] { return EditCopy(); });
  addMenuHandler("EditPaste", [this] { return EditPaste(); });
  addMenuHandler("mnuCloseWin", [this] { return mnuCloseWin(); });
}

void frmFav::imgClut_Action(Int32, Color c) {
  DoDisplayColor(c);
}

void frmFav::DoDisplayColor(Color c) {
  cRect.SetValue(c);
  lblColor.Text = "(" + Str(imgClut.Selected) + ")   RGB: (" + getRGBStr(c) + ")   Hex: " + getHexStr(c);
}

void frmFav::NewClut() {
  TheClut = New<zrClut>();
  TheClut->Clear();
  UpdatePalette();
  currFile = nullptr;
  Title = "Untitled Colors";
}

void frmFav::UpdatePalette() {
  imgClut.SetClut(TheClut);
}

void frmFav::DoAddColor(Color c) {
  if (!hasSelection()) return;
  DoSaveUndo();
  TheClut->Add(c);
  imgClut.SetClut(TheClut);
}

void frmFav::DoSetSelection(Color c) {
  if (!hasSelection()) return;
  DoSaveUndo();
  TheClut->SetColor(c, imgClut.Selected);
  imgClut.SetClut(TheClut);
}

void frmFav::DoSaveUndo() {
  if (hasSelection()) pUndoColor = TheClut->getColor(imgClut.Selected);
}

bool frmFav::mnuEditCopyHex() {
  copy(getHexStr);
  return true;
}

bool frmFav::EditCopy() {
  copy(getStdColorString);
  return true;
}

void frmFav::copy(String (*toText)(Color)) const {
  Clipboard clipboard;
  if (!hasSelection()) return;
  clipboard.SetText("#" + toText(TheClut->getColor(imgClut.Selected)));
  clipboard.Close();
}

bool frmFav::EditPaste() {
  Color c = hasSelection() ? TheClut->getColor(imgClut.Selected) : kBlack;
  if (!ColorDrag::paste(c)) return true;
  if (hasSelection()) {
    DoSetSelection(c);
  } else {
    DoAddColor(c);
  }
  return true;
}

bool frmFav::mnuCloseWin() {
  Close();
  return true;
}

bool frmFav::mnuSaveClut() {
  SaveColors(currFile);
  return true;
}

bool frmFav::mnuSaveAS() {
  SaveColors(nullptr);
  return true;
}

// Replaces the old table before loading, so the old table is lost even if the load fails.
void frmFav::ReadColors(const Ref<FolderItem>& f) {
  if (!f) return;
  TheClut = New<zrClut>();
  const String extension = Right(f->Name(), 3);
  const bool isRead =
      (sameText(extension, "aco") && TheClut->ReadSwatch(f)) || (sameText(extension, "act") && TheClut->ReadClut(f));
  if (!isRead) return Close();
  currFile = f;
  Title = f->Name();
  UpdatePalette();
}

void frmFav::SaveColors(Ref<FolderItem> f) {
  if (!TheClut) return MsgBox("Unable to save color. No colors available");
  if (!f) f = GetSaveFolderItem("", "Untitled.aco");
  if (!f || !TheClut->writeSwatch(f)) return;
  currFile = f;
  Title = f->Name();
}

}  // namespace tavrelkin
