#pragma once

#include <string>

#include "runtime/core/base/Ref.h"
#include "runtime/core/files/BinaryStream.h"
#include "runtime/core/text/Text.h"

namespace tavrelkin {

// A text file that a FolderItem has created. Nothing can be written to it.
class TextOutputStream : public Object {
 public:
  // Ends the use of the object. Does nothing.
  void Close() {}
};

// The path of a file or a folder, which may be missing.
class FolderItem : public Object {
 public:
  // `path` is in the encoding of the file system. It is not checked here.
  explicit FolderItem(std::string path);

  // The four-character codes of a file's type and of the program that created it. Files on this system have no such
  // codes, so setting them has no effect on the disk.
  String MacType;
  String MacCreator;

  // The last part of the path.
  String Name() const;

  // Whether a file or a folder of this path exists. False for a link to a missing file.
  bool Exists() const;

  // The item of that name in this folder, which may be missing. Nil if the text can't be a name: if it is empty, "." or
  // "..", or contains a slash or a zero byte.
  Ref<FolderItem> Child(const String& name) const;

  // A stream for writing, which creates or replaces the file when it is closed. Nil if the file can't be written; no
  // message is shown then. The type name has no effect.
  Ref<BinaryStream> CreateBinaryFile(const String& typeName) const;

  // A stream for reading. Nil if the file is missing or can't be read, for a folder, and if `forWriting` is true, since
  // writing in place is not supported.
  Ref<BinaryStream> OpenAsBinaryFile(bool forWriting) const;

  // Creates an empty file, or empties the file that exists, at once. If that fails, the user sees a message with the
  // cause, and the result is nil. Must not be called from a thread.
  Ref<TextOutputStream> CreateTextFile() const;

 private:
  std::string path_;
};

// Lets the user choose a folder and a name for a file in the desktop's dialog, which begins with `defaultName`.
// `filter` is the kind of files that the dialog shows, such as "Swatches (*.aco)"; empty means all files. The name is
// exactly as the user typed it. If such a file exists, the user has agreed to replace it. Nil if the user cancels. Must
// not be called from a thread.
Ref<FolderItem> GetSaveFolderItem(const String& filter, const String& defaultName);

namespace SpecialFolder {

// The folder for the program's own files of this user. Creates the folder if it is missing. Nil if the desktop has no
// place for such files.
Ref<FolderItem> ApplicationData();

}  // namespace SpecialFolder

}  // namespace tavrelkin
