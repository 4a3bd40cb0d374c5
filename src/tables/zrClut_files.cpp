// The table's two file formats. Readers and writers of a format don't mirror each other, and this is meant: files in
// use depend on it.

#include "runtime/files/FolderItem.h"
#include "runtime/gui/MsgBox.h"
#include "tables/zrClut.h"

namespace tavrelkin {

namespace {

void writeTwice(BinaryStream& stream, Int32 byte) {
  stream.WriteByte(byte);
  stream.WriteByte(byte);
}

// A byte as the high half of a channel, less the low half.
Int32 readHighByte(BinaryStream& stream) {
  const Int32 high = stream.ReadByte();
  stream.Position += 1;
  return high;
}

}  // namespace

bool zrClut::writeSwatch(const Ref<FolderItem>& file) const {
  if (!file) return false;
  const Ref<BinaryStream> stream = file->CreateBinaryFile("ColorSwatch");
  if (!stream) {
    MsgBox("Unable to save swatch file");
    return false;
  }
  stream->WriteShort(1);
  stream->WriteShort(Count + 1);
  for (Int32 i = 0; i <= Count; ++i) {
    const Color c = getColor(i);
    stream->WriteShort(0);
    writeTwice(*stream, c.red());
    writeTwice(*stream, c.green());
    writeTwice(*stream, c.blue());
    stream->WriteShort(0);
  }
  stream->Close();
  file->MacType = "8BCO";
  file->MacCreator = "8BIM";
  return true;
}

bool zrClut::WriteClut(const Ref<FolderItem>& file) const {
  if (!file) return false;
  const Ref<BinaryStream> stream = file->CreateBinaryFile("ColorClut");
  if (!stream) {
    MsgBox("Unable to save clut file");
    return false;
  }
  for (Int32 i = 0; i <= 255; ++i) {
    const Color c = getColor(i);
    stream->WriteByte(c.red());
    stream->WriteByte(c.green());
    stream->WriteByte(c.blue());
  }
  stream->Close();
  file->MacType = "8BCT";
  file->MacCreator = "8BIM";
  return true;
}

bool zrClut::ReadSwatch(const Ref<FolderItem>& file) {
  if (!file || !file->Exists()) return false;
  const Ref<BinaryStream> stream = file->OpenAsBinaryFile(false);
  if (!stream) {
    MsgBox("Unable to read color swatch");
    return false;
  }
  stream->Position = 2;
  resize(stream->ReadShort());
  stream->Position = 6;
  // With a count of 0 or less the cursor never meets it, and the rest of the file is read in vain.
  while (!stream->EOF()) {
    const Int32 red = readHighByte(*stream);
    const Int32 green = readHighByte(*stream);
    const Int32 blue = readHighByte(*stream);
    stream->Position += 4;
    Add(RGB(red, green, blue));
    if (Index + 1 == Count) break;
  }
  stream->Close();
  return true;
}

bool zrClut::ReadClut(const Ref<FolderItem>& file) {
  if (!file || !file->Exists()) return false;
  const Ref<BinaryStream> stream = file->OpenAsBinaryFile(false);
  if (!stream) {
    MsgBox("Unable to read color clut");
    return false;
  }
  resize(255);
  while (!stream->EOF()) {
    const Int32 red = stream->ReadByte();
    const Int32 green = stream->ReadByte();
    const Int32 blue = stream->ReadByte();
    Add(RGB(red, green, blue));
    if (Index + 1 == Count) break;
  }
  stream->Close();
  return true;
}

}  // namespace tavrelkin
