#include "tables/zrClut.h"

#include <algorithm>
#include <cstdint>

#include "runtime/core/base/Exceptions.h"
#include "runtime/core/files/FolderItem.h"
#include "runtime/core/system/Dialogs.h"

namespace tavrelkin {

namespace {

constexpr Int32 kUpperBound = 255;

void writeTwice(BinaryStream& stream, Int32 byte) {
  stream.WriteByte(byte);
  stream.WriteByte(byte);
}

// Reads the high byte of a channel and skips the low byte.
Int32 readHighByte(BinaryStream& stream) {
  const Int32 high = stream.ReadByte();
  stream.Position += 1;
  return high;
}

// These two return the stream of a file, or nil. A message appears if the file can't be made, or exists but can't be
// opened.
Ref<BinaryStream> opened(const Ref<FolderItem>& file, const char* complaint) {
  if (!file || !file->Exists()) return nullptr;
  Ref<BinaryStream> stream = file->OpenAsBinaryFile(false);
  if (!stream) MsgBox(complaint);
  return stream;
}
Ref<BinaryStream> created(const Ref<FolderItem>& file, const char* typeName, const char* complaint) {
  if (!file) return nullptr;
  Ref<BinaryStream> stream = file->CreateBinaryFile(typeName);
  if (!stream) MsgBox(complaint);
  return stream;
}

void finish(BinaryStream& stream, FolderItem& file, const char* macType) {
  stream.Close();
  file.MacType = macType;
  file.MacCreator = "8BIM";
}

// Moves the cursor over the rest of the stream, as Add would for each colour of `bytes` bytes. The rest may be
// gigabytes long, so the move is calculated, and limited to what an Int32 holds.
void skipRest(zrClut& table, const BinaryStream& stream, Int32 bytes) {
  const std::int64_t passed = (stream.size() - stream.Position + bytes - 1) / bytes;
  table.Index = toInt32(static_cast<Double>(table.Index + passed));
}

// Adds colours of `bytes` bytes each, up to the end of the stream or the last entry but one. A table with a Count of 0
// or less has no such entry, and stores at most one colour.
template <class ReadColor>
void fill(zrClut& table, BinaryStream& stream, Int32 bytes, ReadColor readColor) {
  while (!stream.EOF()) {
    table.Add(readColor());
    if (table.Index + 1 == table.Count) break;
    if (table.Index >= table.Count) {
      skipRest(table, stream, bytes);
      break;
    }
  }
  stream.Close();
}

}  // namespace

zrClut::zrClut() {
  zrClut::Clear();
}

std::size_t zrClut::place(Int32 i) const {
  const auto at = static_cast<std::size_t>(i);
  if (i < 0 || at >= aColors.size()) throw OutOfBoundsException();
  return at;
}

void zrClut::resize(Int32 upperBound) {
  Count = upperBound;
  Index = -1;
  aColors.resize(upperBound < 0 ? 0 : static_cast<std::size_t>(upperBound) + 1);
}

void zrClut::Clear() {
  resize(kUpperBound);
  std::fill(aColors.begin(), aColors.end(), kWhite);
}

void zrClut::Add(Color c) {
  ++Index;
  if (Index <= Count) aColors[place(Index)] = c;
}

void zrClut::Remove(Int32 i) {
  if (0 <= i && i <= kUpperBound && Count >= 0) aColors[place(i)] = kWhite;
}

Color zrClut::getColor(Int32 i) const {
  if (i < 0 || i > Count) return kBlack;
  return aColors[place(i)];
}

void zrClut::SetColor(Color c, Int32 i) {
  if (0 <= i && i <= kUpperBound && Count >= 0) aColors[place(i)] = c;
}

void zrClut::Reset() {
  Index = -1;
}

Color zrClut::NextColor() {
  if (Index + 1 > kUpperBound) return kBlack;
  return aColors[place(++Index)];
}

// On purpose, the reader and the writer of a format don't mirror each other: files in use depend on it.
bool zrClut::writeSwatch(const Ref<FolderItem>& file) const {
  const Ref<BinaryStream> stream = created(file, "ColorSwatch", "Unable to save swatch file");
  if (!stream) return false;
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
  finish(*stream, *file, "8BCO");
  return true;
}

bool zrClut::WriteClut(const Ref<FolderItem>& file) const {
  const Ref<BinaryStream> stream = created(file, "ColorClut", "Unable to save clut file");
  if (!stream) return false;
  for (Int32 i = 0; i <= 255; ++i) {
    const Color c = getColor(i);
    stream->WriteByte(c.red());
    stream->WriteByte(c.green());
    stream->WriteByte(c.blue());
  }
  finish(*stream, *file, "8BCT");
  return true;
}

bool zrClut::ReadSwatch(const Ref<FolderItem>& file) {
  const Ref<BinaryStream> stream = opened(file, "Unable to read color swatch");
  if (!stream) return false;
  stream->Position = 2;
  resize(stream->ReadShort());
  stream->Position = 6;
  fill(*this, *stream, 10, [&] {
    const Int32 red = readHighByte(*stream);
    const Int32 green = readHighByte(*stream);
    const Int32 blue = readHighByte(*stream);
    stream->Position += 4;
    return RGB(red, green, blue);
  });
  return true;
}

bool zrClut::ReadClut(const Ref<FolderItem>& file) {
  const Ref<BinaryStream> stream = opened(file, "Unable to read color clut");
  if (!stream) return false;
  resize(255);
  fill(*this, *stream, 3, [&] {
    const Int32 red = stream->ReadByte();
    const Int32 green = stream->ReadByte();
    const Int32 blue = stream->ReadByte();
    return RGB(red, green, blue);
  });
  return true;
}

}  // namespace tavrelkin
