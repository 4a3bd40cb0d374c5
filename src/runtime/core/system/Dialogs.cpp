#include "runtime/core/system/Dialogs.h"

#include "runtime/desktop/Desktop.h"

namespace tavrelkin {

void MsgBox(const String& text) {
  desktop().messageBox(text);
}

bool SelectColor(Color& c, const String& prompt) {
  const auto chosen = desktop().selectColor(c.bits, prompt);
  if (chosen) c = Color{*chosen};
  return chosen.has_value();
}

}  // namespace tavrelkin
