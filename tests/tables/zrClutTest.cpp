// The table, and its files byte for byte, including the differences between readers and writers.

#include <filesystem>
#include <string>

#include "fakes/RuntimeTest.h"
#include "fakes/TemporaryFolder.h"
#include "runtime/core/base/Exceptions.h"
#include "tables/zrClut.h"

namespace tavrelkin {
namespace {

constexpr Color kColor{0x123456};

void expectNew(const zrClut& table) {
  EXPECT_EQ(table.Count, 255);
  EXPECT_EQ(table.Index, -1);
  EXPECT_EQ(table.aColors, std::vector<Color>(256, kWhite));
}

// Gives a table the upper bound that it has after reading a file of `upperBound` colours.
void shorten(zrClut& table, Int32 upperBound) {
  table.Count = upperBound;
  table.aColors.resize(static_cast<std::size_t>(upperBound) + 1);
}

TEST(zrClutTest, AFullTableTakesNoMoreUntilTheCursorIsBack) {
  zrClut table;
  for (std::uint32_t i = 0; i < 300; ++i)
    table.Add(Color{i});
  EXPECT_EQ(table.Index, 299);
  for (const auto& [i, c] : {std::pair{-1, kBlack}, {1, Color{1}}, {255, Color{255}}, {256, kBlack}})
    EXPECT_EQ(table.getColor(i), c) << i;
  table.Remove(3);
  table.Add(kColor);
  EXPECT_EQ(table.getColor(3), kWhite) << "a free entry is not used again";
  table.Reset();
  EXPECT_EQ(table.NextColor(), kBlack);
  table.Add(kColor);
  EXPECT_EQ(table.getColor(1), kColor) << "both move the cursor";
  table.Index = 254;
  EXPECT_EQ(table.NextColor(), Color{255});
  EXPECT_EQ(table.NextColor(), kBlack);
  EXPECT_EQ(table.Index, 255);
  table.Clear();
  expectNew(table);
}

// The bounds are 0 and 255 for each table, so a shorter table throws.
TEST(zrClutTest, EntriesAreSetWithinFixedBounds) {
  zrClut table;
  for (const Int32 i : {-1, 256}) {
    table.SetColor(kColor, i);
    table.Remove(i);
  }
  expectNew(table);
  shorten(table, 400);
  for (const Int32 i : {255, 256})
    table.SetColor(kColor, i);
  EXPECT_EQ(table.getColor(255), kColor);
  EXPECT_EQ(table.getColor(256), kBlack);

  shorten(table, 2);
  table.Index = 2;
  EXPECT_THROW(table.SetColor(kColor, 3), OutOfBoundsException);
  EXPECT_THROW(table.Remove(255), OutOfBoundsException);
  EXPECT_THROW(table.NextColor(), OutOfBoundsException);
  shorten(table, -1);
  table.SetColor(kColor, 0);
  table.Remove(0);
  EXPECT_EQ(table.getColor(0), kBlack);
}

// Neighbours differ in all channels, and no channel is 0 or 255.
Color colorAt(Int32 i) {
  return RGB(i % 199 + 1, 200 - i % 197, i % 7 + 9);
}
String word(Int32 value) {
  return ChrB(value >> 8) + ChrB(value);
}
String swatchEntry(Color c) {
  return word(0) + word(c.red() * 257) + word(c.green() * 257) + word(c.blue() * 257) + word(0);
}
String swatch(Int32 stated, Int32 colors) {
  String bytes = word(1) + word(stated);
  for (Int32 i = 0; i < colors; ++i)
    bytes += swatchEntry(colorAt(i));
  return bytes;
}
String triples(Int32 colors) {
  String bytes;
  for (Int32 i = 0; i < colors; ++i)
    bytes += ChrB(colorAt(i).red()) + ChrB(colorAt(i).green()) + ChrB(colorAt(i).blue());
  return bytes;
}

class SwatchFilesTest : public RuntimeTest {
 protected:
  Ref<zrClut> readSwatch(const String& bytes) const {
    auto table = New<zrClut>();
    EXPECT_TRUE(table->ReadSwatch(folder.write("in", bytes)));
    return table;
  }
  Ref<zrClut> readClut(const String& bytes) const {
    auto table = New<zrClut>();
    EXPECT_TRUE(table->ReadClut(folder.write("in", bytes)));
    return table;
  }
  String writtenSwatch(const zrClut& table) const {
    return table.writeSwatch(folder.item("out")) ? folder.read("out") : "";
  }
  String writtenClut(const zrClut& table) const {
    return table.WriteClut(folder.item("out")) ? folder.read("out") : "";
  }
  // Expects that the table has `colors` colours of the file, the last of them with only `channels` channels, and is
  // otherwise new.
  static void expectRead(const zrClut& table, Int32 colors, std::size_t channels = 3) {
    for (Int32 i = 0; i <= table.Count; ++i) {
      const Color c = colorAt(i);
      Color expected = i < colors ? c : i <= 255 ? kWhite : kBlack;
      if (i + 1 == colors) expected = RGB(c.red(), channels > 1 ? c.green() : 0, channels > 2 ? c.blue() : 0);
      ASSERT_EQ(table.getColor(i), expected) << i << " of " << colors;
    }
  }
  const TemporaryFolder folder;
};

TEST_F(SwatchFilesTest, ANewTableIsWrittenAs256WhiteColors) {
  const auto table = New<zrClut>();
  String expected = word(1) + word(256);
  for (int i = 0; i < 256; ++i)
    expected += swatchEntry(kWhite);
  EXPECT_EQ(writtenSwatch(*table), expected);
  EXPECT_EQ(writtenClut(*table), String(768, '\xFF'));
  table->SetColor(RGB(18, 52, 86), 255);
  EXPECT_EQ(writtenSwatch(*table).substr(2554), String("\0\0\x12\x12\x34\x34\x56\x56\0\0", 10));
}

TEST_F(SwatchFilesTest, AColorTableIs256TriplesOfWhichTheLastIsNeverRead) {
  EXPECT_EQ(writtenClut(*readClut(triples(400))), triples(255) + String(3, '\xFF'));
  const auto few = readSwatch(swatch(2, 2));
  for (const Int32 count : {2, 255}) {
    EXPECT_EQ(few->Count, count);
    EXPECT_EQ(writtenClut(*few), triples(2) + String(3, '\xFF') + String(759, '\0')) << "entries are not cleared";
    EXPECT_TRUE(few->ReadClut(folder.write("in", "")));
  }
}

TEST_F(SwatchFilesTest, FailuresAreToldAndLeaveTheTable) {
  std::filesystem::create_directory(folder.path("folder"));
  const auto table = readSwatch(swatch(20, 10));
  for (const auto& file : {Ref<FolderItem>(), folder.item("none"), folder.item("folder")}) {
    EXPECT_FALSE(table->ReadSwatch(file));
    EXPECT_FALSE(table->ReadClut(file));
  }
  for (const auto& file : {Ref<FolderItem>(), folder.item("folder")}) {
    EXPECT_FALSE(table->writeSwatch(file));
    EXPECT_FALSE(table->WriteClut(file));
  }
  const std::vector<std::string> messages{"Unable to read color swatch", "Unable to read color clut",
                                          "Unable to save swatch file", "Unable to save clut file"};
  EXPECT_EQ(fake().messages, messages);
  EXPECT_EQ(table->Index, 9);
  expectRead(*table, 10);
}

}  // namespace
}  // namespace tavrelkin
