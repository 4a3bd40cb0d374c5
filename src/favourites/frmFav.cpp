// The favourites window's layout and its way with colours; its files are in frmFav_files.cpp.

#include "favourites/frmFav.h"

#include "color/zrColorLib.h"
#include "menubar/MenuBar1.h"
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
  if (!getColorFromString(Trim(Clipboard().Text()), c)) return true;
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

}  // namespace tavrelkin
