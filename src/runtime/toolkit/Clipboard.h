#pragma once

#include "runtime/core/text/Text.h"

namespace tavrelkin {

// A view of the system's clipboard.
class Clipboard {
 public:
  // The text on the clipboard. Empty if there is no text, if another program does not send it within two seconds, or if
  // it is longer than 1 MiB.
  String Text() const;

  // Replaces the contents of the clipboard by a text.
  void SetText(const String& text);

  // Ends the use of the object. The text stays on the clipboard.
  void Close() {}
};

}  // namespace tavrelkin
