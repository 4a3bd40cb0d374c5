#include "runtime/core/system/Keyboard.h"

#include "runtime/desktop/Desktop.h"

namespace tavrelkin::Keyboard {

bool AsyncOptionKey() {
  return desktop().screenReader().optionKey();
}

}  // namespace tavrelkin::Keyboard
