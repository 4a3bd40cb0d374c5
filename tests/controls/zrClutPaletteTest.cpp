#include "controls/ControlsTest.h"
#include "fakes/DragGestures.h"
#include "runtime/core/base/Exceptions.h"

namespace tavrelkin {
namespace {

constexpr Int32 kColumns = 30;
constexpr Int32 kPitch = 13;
constexpr Int32 kLast = 255;
constexpr Color kMark{0x909090};

Color colorAt(Int32 index) {
  return Color{0x400000u + static_cast<std::uint32_t>(index) * 7};
}

class zrClutPaletteTest : public ControlsTest {
 protected:
  // Shows a table with this upper bound.
  void show(Int32 upperBound) {
    const Ref<zrClut> table = New<zrClut>();
    for (Int32 i = 0; i <= kLast; ++i)
      table->Add(colorAt(i));
    table->Count = upperBound;
    palette.SetClut(table);
  }
  // A pixel of a cell; (0, 0) is the top left corner of its frame.
  Color pixel(Int32 index, Int32 x, Int32 y) const {
    return palette.Graphics().Pixel(index % kColumns * kPitch + x, index / kColumns * kPitch + y);
  }
  void click(Int32 index) const {
    gesture::click(palette, index % kColumns * kPitch + 5, index / kColumns * kPitch + 5);
  }
  bool isMarked(Int32 index) const { return pixel(index, 0, 0) == kMark && pixel(index, 13, 0) == kMark; }

  zrClutPalette& palette = host->palette;
};

TEST_F(zrClutPaletteTest, PaintsACellForEachEntryButTheLast) {
  palette.place(20, 7, 391, 143);
  EXPECT_EQ(pixel(0, 5, 5), host->BackColor.get()) << "nothing is painted without a table";
  EXPECT_THROW(palette.Event_MouseUp(5, 5), NilObjectException);
  for (const Int32 upperBound : {kLast, 31, 0, -1}) {
    show(upperBound);
    for (Int32 i = 0; i < 10 * kColumns; ++i) {
      const bool isCell = i < upperBound;
      for (const auto& [x, y] : {std::pair{1, 1}, {12, 1}, {1, 12}, {12, 12}})
        ASSERT_EQ(pixel(i, x, y), isCell ? colorAt(i) : kWhite) << upperBound << ": " << i;
      ASSERT_EQ(pixel(i, 13, 13), isCell ? kBlack : kWhite) << upperBound << ": " << i;
    }
  }
}

TEST_F(zrClutPaletteTest, AClickSelectsByWhereTheButtonGoesUp) {
  // There is no column at x = 390: the position belongs to the first cell of the next row. Of the cells from 240 on,
  // only one row of pixels is visible. Cell 41 shares its frame with the cell that was marked before.
  const std::tuple<Int32, Int32, Int32, Int32> rows[] = {
      {12, 12, 0, kLast},    {13, 0, 1, kLast},      {0, 13, 30, kLast},    {150, 20, 41, kLast}, {390, 0, 30, kLast},
      {390, 104, -1, kLast}, {187, 104, 254, kLast}, {200, 104, -1, kLast}, {-12, 5, 0, kLast},   {-13, 18, 29, kLast},
      {-13, 5, -1, kLast},   {5, -13, -1, kLast},    {5, 5, -1, 0},         {5, 5, 0, 50},        {160, 20, -1, 42}};
  for (const auto& [x, y, index, upperBound] : rows) {
    SCOPED_TRACE(testing::Message() << x << ", " << y);
    show(kLast);
    click(42);
    palette.TheClut->Count = upperBound;
    host->log = "";
    gesture::press(palette, 100, 100);
    gesture::release(palette, x, y);
    EXPECT_EQ(palette.Selected, index);
    EXPECT_EQ(palette.LastSelection, 42);
    EXPECT_EQ(host->log, index < 0 ? "" : "selects-" + Str(index) + "-" + getHexStr(colorAt(index)) + " ");
    EXPECT_TRUE(index < 0 || isMarked(index));
    EXPECT_EQ(pixel(42, 13, 7), kBlack) << "the old mark is gone";
    EXPECT_EQ(pixel(42, 12, 7), upperBound < 42 ? kBlack : colorAt(42));
  }
}

TEST_F(zrClutPaletteTest, APaintWipesTheMarkAndKeepsTheSelection) {
  show(kLast);
  EXPECT_FALSE(isMarked(0)) << "selected but not marked at first";
  click(42);
  for (const auto& [x, c] : {std::pair{0, kMark}, {1, kWhite}, {2, colorAt(42)}, {11, colorAt(42)}, {12, kWhite}})
    EXPECT_EQ(pixel(42, x, 7), c) << x;
  palette.SetClut(palette.TheClut);
  EXPECT_FALSE(isMarked(42));
  EXPECT_EQ(palette.Selected, 42);
}

TEST_F(zrClutPaletteTest, ADragBeginsBeyondSixPixelsWithAColorSelected) {
  const std::tuple<Int32, Int32, Int32, bool> rows[] = {{42, 7, 0, true},    {42, 0, -7, true},   {42, 6, 6, false},
                                                        {42, -6, -6, false}, {-1, 50, 50, false}, {256, 50, 0, false}};
  show(kLast);
  for (const auto& [selected, right, down, begins] : rows) {
    palette.Selected = selected;
    const Ref<DragItem> item = gesture::pull(palette, 100, 50, 100 + right, 50 + down);
    EXPECT_EQ(item ? item->MacData("hcol") : "none", begins ? getRGBStr(colorAt(42)) : "none") << right << ", " << down;
    if (!item) gesture::release(palette, 100, 50);
  }
}

TEST_F(zrClutPaletteTest, ADropOfPrivateDataGoesToTheSelectedCell) {
  const Ref<DragItem> item = New<DragItem>();
  item->SetText("#FF8000");
  show(kLast);
  EXPECT_FALSE(gesture::drop(palette, *item));
  item->MacData("hcol", "255, 128, 0");
  const auto drop = [&] { gesture::drop(palette, *item); };
  EXPECT_EQ(after(drop), "changes-0-FF8000 ");
  EXPECT_TRUE(isMarked(0));
  palette.Selected = -1;
  EXPECT_EQ(after(drop), "");
}

}  // namespace
}  // namespace tavrelkin
