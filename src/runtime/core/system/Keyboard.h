#pragma once

namespace tavrelkin::Keyboard {

// Whether the Option key is held down now. Alt is one, and so is AltGr, the level-3 shift: many window managers keep
// Alt with a drag for themselves.
bool AsyncOptionKey();

}  // namespace tavrelkin::Keyboard
