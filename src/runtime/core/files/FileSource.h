#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

namespace tavrelkin {

// The bytes of a file, read in blocks as they are asked for, so that its size costs no memory.
class FileSource {
 public:
  explicit FileSource(const std::string& path);
  FileSource(const FileSource&) = delete;
  FileSource& operator=(const FileSource&) = delete;
  ~FileSource();

  // False where there is no such file, where it may not be read, and for what is no ordinary file: a folder has no
  // bytes, and a pipe may never give any.
  bool isOpen() const { return descriptor_ >= 0; }

  // The size in bytes when the file was opened, which it keeps here even if it changes.
  std::int64_t size() const { return size_; }

  // The byte at a position, from 0. Gives 0 outside of the file, and where the disk can't give what should be there.
  std::uint8_t at(std::int64_t position);

 private:
  // The place of a position in the block, which holds it only if this is below the block's size.
  std::size_t inBlock(std::int64_t position) const { return static_cast<std::size_t>(position - blockAt_); }
  void load(std::int64_t position);

  int descriptor_;
  std::int64_t size_ = 0;
  std::vector<std::uint8_t> block_;
  std::int64_t blockAt_ = 0;
};

}  // namespace tavrelkin
