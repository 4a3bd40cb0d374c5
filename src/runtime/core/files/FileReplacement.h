#pragma once

#include <filesystem>
#include <string>
#include <string_view>

namespace tavrelkin {

// Replaces the contents of a file as a whole or not at all. The bytes are written to a temporary file in the same
// folder, which is then renamed to the file. Until the rename, and after any failure, the old file is unchanged. Owner,
// group, mode, access list and extended attributes are kept. For a symbolic link, the file behind the link is replaced.
//
// The file is written in place instead if the folder allows no new file, if the file has several hard links, or if a
// new file could not have the old access list or attributes. After a failure the old contents are written back.
//
// The temporary file is not flushed to the disk, since a flush takes a hundred times as long as the rest of the
// operation. The common file systems flush it before a rename that replaces another file, so after a power cut either
// the old or the new file is there. A file that did not exist before may be lost within seconds. Writing in place has
// no such guarantee, so it waits for the disk.
class FileReplacement {
 public:
  // Begins to replace the file at `path`, or to create it.
  explicit FileReplacement(const std::string& path);
  FileReplacement(const FileReplacement&) = delete;
  FileReplacement& operator=(const FileReplacement&) = delete;
  // Deletes the temporary file if commit() was not called.
  ~FileReplacement();

  // Whether commit() can be called. False after a commit, and if the file can't be written: the path is a folder or a
  // device, its folder is missing, the user has no permission to write the old file, or the folder allows no new file.
  bool isOpen() const { return descriptor_ >= 0; }

  // Replaces the contents by these bytes. False if that fails.
  bool commit(std::string_view bytes);

  // The last failure as a text for the user. failure() is the complete message, reason() only the cause.
  std::string failure() const;
  std::string reason() const;

 private:
  void openBeside();
  void openInPlace();
  void replaceWhole(std::string_view bytes);
  void writeInPlace(std::string_view bytes);
  void discard();

  std::filesystem::path target_;
  std::filesystem::path temporary_;  // empty if there is no temporary file
  int descriptor_ = -1;
  int error_ = 0;
  bool isDamaged_ = false;
};

}  // namespace tavrelkin
