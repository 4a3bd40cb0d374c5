#pragma once

#include <filesystem>
#include <string>
#include <string_view>

struct stat;

namespace tavrelkin {

// A file that is written whole or not at all: the bytes go into a temporary file beside it, which then takes its place.
// Until that moment, and after any failure, the old file is as it was. A link stays a link, what it leads to is
// replaced; the mode of the old file stays.
//
// The data is not forced out to the disk, which takes a hundred times as long as all the rest. The common file systems
// write it ahead of a rename that replaces another file, so that a power cut leaves one of the two; a new file may be
// lost in the seconds after it was made.
class FileReplacement {
 public:
  // Begins to replace the file at `path`, or to make a new one.
  explicit FileReplacement(const std::string& path);
  FileReplacement(const FileReplacement&) = delete;
  FileReplacement& operator=(const FileReplacement&) = delete;
  // Takes back what was not committed.
  ~FileReplacement();

  // Whether commit() can be called. False after a commit, and where there can be no such file: a folder or a device
  // bears the name, the folder is missing or may not be written to, or the old file may not be.
  bool isOpen() const { return descriptor_ >= 0; }

  // Puts a file of these bytes into place. False where that fails.
  bool commit(std::string_view bytes);

  // What the last failure means, in words for the user.
  std::string failure() const;

 private:
  void openBeside();
  void takeAfter(const struct stat& old) const;

  std::filesystem::path target_;
  std::filesystem::path temporary_;
  int descriptor_ = -1;
  int error_ = 0;
};

}  // namespace tavrelkin
