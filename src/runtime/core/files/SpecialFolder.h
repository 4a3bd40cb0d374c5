#pragma once

#include "runtime/core/base/Ref.h"
#include "runtime/core/files/FolderItem.h"

namespace tavrelkin::SpecialFolder {

// The folder for the program's own files of this user, made where it is missing. Nil where the desktop has none.
Ref<FolderItem> ApplicationData();

}  // namespace tavrelkin::SpecialFolder
