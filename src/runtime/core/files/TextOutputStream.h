#pragma once

#include "runtime/core/base/Ref.h"

namespace tavrelkin {

// A text file that a FolderItem has made. It stays empty.
class TextOutputStream : public Object {
 public:
  // Ends the use of the object.
  void Close() {}
};

}  // namespace tavrelkin
