#pragma once

#include "runtime/core/base/Ref.h"
#include "runtime/core/files/FolderItem.h"
#include "runtime/core/text/Text.h"

namespace tavrelkin {

// Lets the user choose a place and a name for a file in the desktop's dialog, which begins with `defaultName`. `filter`
// says which files the dialog shows, as "Swatches (*.aco)"; empty for all of them. The name is as the user typed it,
// and the user has agreed if there is such a file already. Nil where the user gives up. Not to be called from a thread.
Ref<FolderItem> GetSaveFolderItem(const String& filter, const String& defaultName);

}  // namespace tavrelkin
