#pragma once

#include "controls/zrClutPalette.h"
#include "controls/zrColorBox.h"
#include "runtime/core/files/FolderItem.h"
#include "runtime/toolkit/StaticText.h"
#include "runtime/toolkit/Window.h"
#include "tables/zrClut.h"

namespace tavrelkin {

// A window that shows, edits and saves one palette. A caller makes it, then calls Show and NewClut. The window doesn't
// record whether the palette was changed, and closes without a question.
class frmFav : public Window {
 public:
  frmFav();

  // The window's own table; nil before NewClut.
  Ref<zrClut> TheClut;
  // The file that "Save colors" writes to; nil for a palette that has none yet.
  Ref<FolderItem> currFile;
  // The selected colour as it was before the last paste or add. Nothing reads it.
  Color pUndoColor;

  // Handles a click in the palette: box and label show the colour. Pastes and drops do not change box and label.
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
  // Loads a palette from a swatch file, whose name ends in "aco", or from a colour table, whose name ends in "act". If
  // that fails, or the name ends otherwise, the window closes. A nil file changes nothing.
  virtual void ReadColors(const Ref<FolderItem>& f);
  // Shows the changes in the table.
  virtual void UpdatePalette();
  // Saves the palette as a swatch file, whatever its name ends in; asks for a file if `f` is nil. Shows a message if
  // the file cannot be written.
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
  // Puts "#" and the result of `toText` for the selected colour on the clipboard. Without a selection the clipboard
  // stays unchanged.
  void copy(String (*toText)(Color)) const;
};

}  // namespace tavrelkin
