#include <gtest/gtest.h>

#include "runtime/base/Exceptions.h"
#include "tables/zrClut.h"

namespace tavrelkin {
namespace {

constexpr Color kColor{0x123456};

void expectNew(const zrClut& table) {
  EXPECT_EQ(table.Count, 255);
  EXPECT_EQ(table.Index, -1);
  EXPECT_EQ(table.aColors, std::vector<Color>(256, kWhite));
}

// As it stands after reading a file of so many colours.
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

// The bounds are 0 and 255 whatever the table's own are, which a shorter table finds out the hard way.
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

}  // namespace
}  // namespace tavrelkin
