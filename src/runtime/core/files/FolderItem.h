#pragma once

#include <string>

#include "runtime/core/base/Ref.h"
#include "runtime/core/files/BinaryStream.h"
#include "runtime/core/text/Text.h"

namespace tavrelkin {

// A text file that a FolderItem has made. It stays empty.
class TextOutputStream : public Object {
 public:
  // Ends the use of the object.
  void Close() {}
};

// The place of a file or a folder, whether there is one or not.
class FolderItem : public Object {
 public:
  // `path` is in the bytes of the file system, and is not looked at before an operation needs it.
  explicit FolderItem(std::string path);

  // The four-character codes of a file's type and of the program that made it. The files of this system have none:
  // setting them changes nothing on the disk.
  String MacType;
  String MacCreator;

  // The last part of the path.
  String Name() const;

  // Whether there is something at this place. A link that leads nowhere does not count.
  bool Exists() const;

  // The item of that name in this folder, which need not exist. Nil where the text can't be a name: if it is empty, "."
  // or "..", or has a slash or a zero byte in it.
  Ref<FolderItem> Child(const String& name) const;

  // A stream for a file that takes the place of what is there when the stream is closed. Nil where no file can be
  // written there; it is the caller who tells the user. The type name means nothing here.
  Ref<BinaryStream> CreateBinaryFile(const String& typeName) const;

  // A stream that reads the file. Nil where there is none or it can't be read, and for a folder. Writing in place is
  // not offered: asking for it gives nil.
  Ref<BinaryStream> OpenAsBinaryFile(bool forWriting) const;

  // Puts an empty file there at once. Where that fails the user is told why, and the result is nil. Not to be called
  // from a thread.
  Ref<TextOutputStream> CreateTextFile() const;

 private:
  std::string path_;
};

// Lets the user choose a place and a name for a file in the desktop's dialog, which begins with `defaultName`. `filter`
// says which files the dialog shows, as "Swatches (*.aco)"; empty for all of them. The name is as the user typed it,
// and the user has agreed if there is such a file already. Nil where the user gives up. Not to be called from a thread.
Ref<FolderItem> GetSaveFolderItem(const String& filter, const String& defaultName);

namespace SpecialFolder {

// The folder for the program's own files of this user, made where it is missing. Nil where the desktop has none.
Ref<FolderItem> ApplicationData();

}  // namespace SpecialFolder

}  // namespace tavrelkin
