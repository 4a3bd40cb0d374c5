#include "runtime/toolkit/SelectColor.h"

#include "runtime/desktop/Desktop.h"

namespace tavrelkin {

bool SelectColor(Color& c, const String& prompt) {
  const auto chosen = desktop().selectColor(c.bits, prompt);
  if (chosen) c = Color{*chosen};
  return chosen.has_value();
}

}  // namespace tavrelkin
