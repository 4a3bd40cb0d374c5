#pragma once

#include <filesystem>
#include <string>
#include <string_view>

namespace tavrelkin {

// A file that gets other contents whole or not at all. The bytes go into a temporary file beside it, which then takes
// its place: until that moment, and after any failure, the old file is as it was. Owner, group, mode, access list and
// extended attributes stay. A link stays a link, what it leads to is replaced.
//
// Where no other file can take its place, the file is written in place: in a folder that takes no new file, for a file
// of several names, which all show the new contents, and where a new file could not have the old access list or
// attributes. After a failure the old contents are put back.
//
// A file that takes another's place is not forced out to the disk, which takes a hundred times as long as all the rest.
// The common file systems write it ahead of a rename that replaces another file, so that a power cut leaves one of the
// two; a new file may be lost in the seconds after it was made. Writing in place has no such moment, and waits for the
// disk.
class FileReplacement {
 public:
  // Begins to replace the file at `path`, or to make a new one.
  explicit FileReplacement(const std::string& path);
  FileReplacement(const FileReplacement&) = delete;
  FileReplacement& operator=(const FileReplacement&) = delete;
  // Takes back what was not committed.
  ~FileReplacement();

  // Whether commit() can be called. False after a commit, and where there can be no such file: a folder or a device
  // bears the name, the folder is missing, the old file may not be written, or there is none and the folder takes no
  // new one.
  bool isOpen() const { return descriptor_ >= 0; }

  // Puts a file of these bytes into place. False where that fails.
  bool commit(std::string_view bytes);

  // What the last failure means, in words for the user, and its cause alone.
  std::string failure() const;
  std::string reason() const;

 private:
  void openBeside();
  void openInPlace();
  void replaceWhole(std::string_view bytes);
  void writeInPlace(std::string_view bytes);
  void discard();

  std::filesystem::path target_;
  std::filesystem::path temporary_;  // empty while there is none
  int descriptor_ = -1;
  int error_ = 0;
  bool isDamaged_ = false;
};

}  // namespace tavrelkin
