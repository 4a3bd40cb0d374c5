#pragma once

#include "controls/zrClutPalette.h"
#include "controls/zrColorBox.h"
#include "runtime/core/files/FolderItem.h"
#include "runtime/toolkit/StaticText.h"
#include "runtime/toolkit/Window.h"
#include "tables/zrClut.h"

namespace tavrelkin {

// A window on one palette, which it edits and saves. Whoever makes one shows it and then calls NewClut. It doesn't know
// whether the palette was changed, and closing it never asks.
class frmFav : public Window {
 public:
  frmFav();

  // The window's own table; nil before NewClut.
  Ref<zrClut> TheClut;
  // The file that "Save colors" writes to; nil for a palette that has none yet.
  Ref<FolderItem> currFile;
  // The selected colour as it was before the last paste or add. Nothing reads it.
  Color pUndoColor;

  // A click in the palette: its colour is shown. Pastes and drops leave box and label as they are.
  virtual void imgClut_Action(Int32 index, Color c);

  void AddMenuHandlers() override;

  // Menu commands; each reports itself as handled.
  virtual bool mnuSaveClut();
  virtual bool mnuSaveAS();
  virtual bool EditPaste();
  virtual bool mnuEditCopyHex();
  virtual bool EditCopy();
  virtual bool mnuCloseWin();

  // Shows a colour in box and label, with the index of the selected cell.
  virtual void DoDisplayColor(Color c);
  // Loads a palette: swatch files by names that end in "aco", colour tables by "act". Where that fails the window
  // closes itself. A nil file changes nothing.
  virtual void ReadColors(const Ref<FolderItem>& f);
  // Shows what has changed in the table.
  virtual void UpdatePalette();
  // Saves the palette as a swatch file, whatever its name ends in; asks for a file where `f` is nil. What goes wrong is
  // told to the user.
  virtual void SaveColors(Ref<FolderItem> f);
  // Begins a new palette without a file.
  virtual void NewClut();
  // Adds a colour to the table, or puts it into the selected entry. Without a selection both do nothing.
  virtual void DoAddColor(Color c);
  virtual void DoSetSelection(Color c);
  // Notes the selected colour in pUndoColor.
  virtual void DoSaveUndo();

  zrClutPalette imgClut{*this, "imgClut"};
  StaticText lblColor{*this, "lblColor"};
  zrColorBox cRect{*this, "cRect"};

 private:
  bool hasSelection() const { return imgClut.Selected >= 0; }
  // Puts the selected colour on the clipboard, as `toText` writes it, with "#" ahead of it. Without a selection the
  // clipboard stays as it is.
  void copy(String (*toText)(Color)) const;
};

}  // namespace tavrelkin
