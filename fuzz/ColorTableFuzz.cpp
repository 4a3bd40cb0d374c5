// A colour table file.

#include "fuzz/support/FileInput.h"
#include "tables/zrClut.h"

namespace tavrelkin {
namespace {

constexpr std::size_t kFileSize = 768;

// The bytes that a new table writes after it has read the file: those of the file, up to the last entry. Missing bytes
// of a colour are 0.
String expected(const String& bytes) {
  String all = MidB(bytes, 1, 3 * 255);
  while (all.size() % 3 != 0)
    all += '\0';
  all.resize(kFileSize, '\xFF');
  return all;
}

void checkBounds(const zrClut& table) {
  require(table.Count == 255 && table.aColors.size() == 256, "a table has 256 entries");
  require(table.Index < 255, "the last entry is never reached");
}

// A table that was short before must not keep its old bounds; its new entries must be black.
void checkShortTable(const Ref<FolderItem>& file, const zrClut& read) {
  zrClut table;
  table.Count = 0;
  table.aColors.resize(1);
  require(table.ReadClut(file), "any bytes are read into any table");
  checkBounds(table);
  require(table.Index == read.Index, "a file fills as many entries of any table");
  for (Int32 i = 0; i < 256; ++i) {
    const Color rest = i == 0 ? kWhite : kBlack;
    require(table.getColor(i) == (i <= read.Index ? read.getColor(i) : rest), "what is not read stays");
  }
}

}  // namespace
}  // namespace tavrelkin

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using namespace tavrelkin;
  const FileInput input(data, size);
  zrClut table;
  require(table.ReadClut(input.file), "any bytes are read");
  checkBounds(table);
  checkShortTable(input.file, table);
  require(table.WriteClut(input.file), "a table can be written");
  require(input.content() == expected(input.bytes), "what was read is written");
  input.requireSilence();
  return 0;
}
