#pragma once

#include "runtime/text/Text.h"

namespace tavrelkin {

// A view of the system's clipboard.
class Clipboard {
 public:
  // The text on the clipboard; empty where there is none.
  String Text() const;

  // Replaces what is on the clipboard by a text.
  void SetText(const String& text);

  // Ends the use of the object; the text stays on the clipboard.
  void Close() {}
};

}  // namespace tavrelkin
