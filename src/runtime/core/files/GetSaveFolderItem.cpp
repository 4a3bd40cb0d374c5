#include "runtime/core/files/GetSaveFolderItem.h"

#include "runtime/desktop/Desktop.h"

namespace tavrelkin {

Ref<FolderItem> GetSaveFolderItem(const String& filter, const String& defaultName) {
  const auto chosen = desktop().chooseSaveFile(filter, defaultName);
  if (!chosen) return nullptr;
  return New<FolderItem>(*chosen);
}

}  // namespace tavrelkin
