// A swatch file.

#include <algorithm>

#include "fuzz/support/FileInput.h"
#include "tables/zrClut.h"

namespace tavrelkin {
namespace {

// The size of a table with this upper bound.
std::size_t entries(Int32 upperBound) {
  return static_cast<std::size_t>(std::max(upperBound, -1) + 1);
}

// The byte at a position in the file, or 0 after its end.
Int32 byteAt(const String& bytes, Int32 at) {
  return AscB(MidB(bytes, at + 1, 1));
}

// The colour that a new table must have at an index after it has read the file.
Color expected(const String& bytes, Int32 count, Int32 i) {
  const Int32 at = 6 + 10 * i;
  const bool isRead = i < std::max(count, 1) && at < LenB(bytes);
  if (!isRead) return i <= 255 ? kWhite : kBlack;
  return RGB(byteAt(bytes, at), byteAt(bytes, at + 2), byteAt(bytes, at + 4));
}

void checkRead(const zrClut& table, const String& bytes) {
  const Int32 stated = byteAt(bytes, 2) << 8 | byteAt(bytes, 3);
  require(table.Count == (stated < 0x8000 ? stated : stated - 0x10000), "the number in the file is the upper bound");
  require(table.aColors.size() == entries(table.Count), "the table is as long as its bound says");
  for (Int32 i = 0; i <= table.Count; ++i)
    require(table.getColor(i) == expected(bytes, table.Count, i), "a colour comes from its place in the file");
  require(table.getColor(table.Count + 1) == kBlack, "there is nothing above the bound");
}

void checkWritten(const zrClut& table, const FileInput& input) {
  require(table.writeSwatch(input.file), "a table can be written");
  require(input.content().size() == 4 + 10 * entries(table.Count), "a file has all entries");
  zrClut again;
  require(again.ReadSwatch(input.file), "a written file can be read");
  require(again.Count == table.Count + 1, "a round adds an entry");
  for (Int32 i = 0; i <= table.Count; ++i)
    require(again.getColor(i) == table.getColor(i), "a written colour is read back");
}

}  // namespace
}  // namespace tavrelkin

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using namespace tavrelkin;
  const FileInput input(data, size);
  zrClut table;
  for (const char* rule : {"any bytes are read", "a file can be read twice"}) {
    require(table.ReadSwatch(input.file), rule);
    checkRead(table, input.bytes);
  }
  // The longest tables would take too much time.
  if (table.Count < 1000) checkWritten(table, input);
  input.requireSilence();
  return 0;
}
