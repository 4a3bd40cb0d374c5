#include "runtime/core/system/MsgBox.h"

#include "runtime/desktop/Desktop.h"

namespace tavrelkin {

void MsgBox(const String& text) {
  desktop().messageBox(text);
}

}  // namespace tavrelkin
