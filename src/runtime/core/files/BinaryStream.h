#pragma once

#include <cstdint>
#include <cstdio>
#include <memory>
#include <string>

#include "runtime/core/base/Number.h"
#include "runtime/core/base/Ref.h"

// The C library has a macro of this name, which would hide the operation.
#undef EOF

namespace tavrelkin {

class FileReplacement;
class FileSource;

// The bytes of a file, for reading or for writing; a FolderItem makes it. Numbers of two bytes have the high one first.
//
// A stream for writing replaces the contents in Close and not before: a stream that goes without it leaves the file as
// it was. Once closed, a stream gives and takes nothing.
class BinaryStream : public Object {
 public:
  explicit BinaryStream(std::unique_ptr<FileSource> source);
  explicit BinaryStream(std::unique_ptr<FileReplacement> target);
  ~BinaryStream() override;

  // The place of the next byte, from 0. Reads and writes move it forward; it may stand anywhere.
  std::int64_t Position = 0;

  // The number of bytes in the file.
  std::int64_t size() const;

  // Whether Position stands at the end or beyond it.
  bool EOF() const;

  // A byte, 0 to 255. What lies outside of the file reads as 0; Position moves there too.
  Int32 ReadByte();
  // Two bytes, -32768 to 32767.
  Int32 ReadShort();

  // Writes the low 8 bits, or the low 16, of a value. What a write beyond the end leaves out is filled with zeros.
  void WriteByte(Int32 value);
  void WriteShort(Int32 value);

  // Ends the use of the stream. If the file can't be replaced, the user is told why. Not to be called from a thread.
  void Close();

 private:
  std::unique_ptr<FileSource> source_;
  std::unique_ptr<FileReplacement> target_;
  std::string written_;
};

}  // namespace tavrelkin
