#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

namespace tavrelkin {

// The bytes of a file. They are read in blocks on demand, so a large file takes no more memory than a small one.
class FileSource {
 public:
  explicit FileSource(const std::string& path);
  FileSource(const FileSource&) = delete;
  FileSource& operator=(const FileSource&) = delete;
  ~FileSource();

  // False if the file is missing, may not be read, or is not a regular file: a folder has no bytes, and a pipe may
  // never deliver any.
  bool isOpen() const { return descriptor_ >= 0; }

  // The size in bytes when the file was opened, even if it has changed since.
  std::int64_t size() const { return size_; }

  // The byte at a position, from 0. Gives 0 outside of the file, and if the file can't be read there.
  std::uint8_t at(std::int64_t position);

 private:
  // The index of a position in the block. The block holds the position only if the index is below its size.
  std::size_t inBlock(std::int64_t position) const { return static_cast<std::size_t>(position - blockAt_); }
  void load(std::int64_t position);

  int descriptor_;
  std::int64_t size_ = 0;
  std::vector<std::uint8_t> block_;
  std::int64_t blockAt_ = 0;
};

}  // namespace tavrelkin
