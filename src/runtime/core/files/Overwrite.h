#pragma once

#include <cstddef>
#include <string_view>

namespace tavrelkin {

struct WriteResult {
  std::size_t count;  // of the bytes that are in the file now
  int error;          // an error number, or 0
};

// Writes bytes at the beginning of an open file, as far as that works.
WriteResult writeAll(int descriptor, std::string_view bytes);

struct OverwriteResult {
  int error = 0;           // an error number, or 0
  bool isDamaged = false;  // after an error: whether the old contents are lost
};

// Gives an open file other contents, and waits until they are on the disk. What that destroys is kept in memory until
// then, and is put back after an error. The file has to be open for reading and writing.
OverwriteResult overwrite(int descriptor, std::string_view bytes);

}  // namespace tavrelkin
