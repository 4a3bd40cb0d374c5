// The favourites window's palettes in files.

#include "favourites/frmFav.h"
#include "runtime/core/files/FolderItem.h"
#include "runtime/core/system/Dialogs.h"

namespace tavrelkin {

bool frmFav::mnuSaveClut() {
  SaveColors(currFile);
  return true;
}

bool frmFav::mnuSaveAS() {
  SaveColors(nullptr);
  return true;
}

// The old table is gone from the start, also where the load fails.
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
