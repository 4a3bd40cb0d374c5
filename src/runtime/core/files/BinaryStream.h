#pragma once

#include <cstdint>
#include <cstdio>
#include <memory>
#include <string>

#include "runtime/core/base/Number.h"
#include "runtime/core/base/Ref.h"

// The C library has a macro of this name, which would replace the name of the operation.
#undef EOF

namespace tavrelkin {

class FileReplacement;
class FileSource;

// The bytes of a file, for reading or for writing. A FolderItem makes it. Numbers of two bytes are big-endian.
//
// A stream for writing replaces the contents of the file in Close. If it is destroyed without Close, the file stays as
// it was. A closed stream reads as empty and ignores writes.
class BinaryStream : public Object {
 public:
  explicit BinaryStream(std::unique_ptr<FileSource> source);
  explicit BinaryStream(std::unique_ptr<FileReplacement> target);
  ~BinaryStream() override;

  // The offset of the next byte, from 0. Reads and writes advance it. It may be set to any value.
  std::int64_t Position = 0;

  // The number of bytes in the file.
  std::int64_t size() const;

  // Whether Position is at the end or beyond it.
  bool EOF() const;

  // Reads a byte, 0 to 255, and advances Position by 1. Returns 0 if Position is outside of the file.
  Int32 ReadByte();
  // Reads two bytes as a number, -32768 to 32767.
  Int32 ReadShort();

  // Write the low 8 or 16 bits of a value. A gap between the end and Position is filled with zeros. A negative Position
  // throws OutOfBoundsException.
  void WriteByte(Int32 value);
  void WriteShort(Int32 value);

  // Closes the stream. If the file can't be replaced, the user sees a message with the cause. Must not be called from a
  // thread.
  void Close();

 private:
  std::unique_ptr<FileSource> source_;
  std::unique_ptr<FileReplacement> target_;
  std::string written_;
};

}  // namespace tavrelkin
