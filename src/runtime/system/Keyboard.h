#pragma once

namespace tavrelkin::Keyboard {

// Whether the Option (Alt) key is held down now.
bool AsyncOptionKey();

}  // namespace tavrelkin::Keyboard
