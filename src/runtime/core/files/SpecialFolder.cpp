#include "runtime/core/files/SpecialFolder.h"

#include <string>

#include "runtime/desktop/Desktop.h"

namespace tavrelkin::SpecialFolder {

Ref<FolderItem> ApplicationData() {
  const std::string path = desktop().applicationDataFolder();
  if (path.empty()) return nullptr;
  return New<FolderItem>(path);
}

}  // namespace tavrelkin::SpecialFolder
