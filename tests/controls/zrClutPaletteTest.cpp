#include <algorithm>

#include "controls/zrClutPalette.h"
#include "runtime/base/Exceptions.h"
#include "support/DragGestures.h"
#include "support/Gestures.h"
#include "support/RuntimeTest.h"

namespace tavrelkin {
namespace {

constexpr Int32 kColumns = 30;
constexpr Int32 kPitch = 13;
constexpr Int32 kLast = 255;

Color colorAt(Int32 index) {
  return Color{0x400000u + static_cast<std::uint32_t>(index) * 7};
}

// A table with this upper bound.
Ref<zrClut> tableOf(Int32 upperBound) {
  Ref<zrClut> table = New<zrClut>();
  table->Count = upperBound;
  table->aColors.resize(static_cast<std::size_t>(upperBound) + 1);
  for (Int32 i = 0; i <= upperBound; ++i)
    table->Add(colorAt(i));
  return table;
}

class Host : public Window {
 public:
  explicit Host(Int32 height) : Window({.title = "Host", .width = 431, .height = 161}) {
    palette.place(20, 7, 391, height);
    palette.Open = [this] { log += "open " + Str(palette.Selected) + " " + Str(palette.wBox); };
    palette.Action = [this](Int32 index, Color c) { log += "action " + Str(index) + " " + Hex(toInt32(c.bits)); };
    palette.Change = [this](Int32 index, Color c) { log += "change " + Str(index) + " " + Hex(toInt32(c.bits)); };
  }
  Color pixel(Int32 x, Int32 y) { return palette.Graphics().Pixel(x, y); }
  void click(Int32 index) { gesture::click(palette, index % kColumns * kPitch + 5, index / kColumns * kPitch + 5); }

  zrClutPalette palette{*this, "palette"};
  String log;
};

class zrClutPaletteTest : public RuntimeTest {
 protected:
  Ref<Host> open(const Ref<zrClut>& table, Int32 height = 105) {
    Ref<Host> host = New<Host>(height);
    host->Show();
    if (table) host->palette.SetClut(table);
    host->log = "";
    return host;
  }
};

// What a paint leaves at a pixel of a palette without a mark.
Color paintedAt(Int32 x, Int32 y, Int32 cells) {
  const auto isCell = [cells](Int32 column, Int32 row) {
    return 0 <= column && column < kColumns && 0 <= row && row * kColumns + column < cells;
  };
  const Int32 column = x / kPitch, row = y / kPitch;
  const Int32 left = x % kPitch == 0 ? column - 1 : column, above = y % kPitch == 0 ? row - 1 : row;
  if (left == column && above == row) return isCell(column, row) ? colorAt(row * kColumns + column) : kWhite;
  const bool framed = isCell(column, row) || isCell(left, row) || isCell(column, above) || isCell(left, above);
  return framed ? kBlack : kWhite;
}

bool isMarked(Host& host, Int32 index) {
  const Int32 left = index % kColumns * kPitch, top = index / kColumns * kPitch;
  for (Int32 y = 0; y < 14 && top + y < host.palette.Height; ++y) {
    for (Int32 x = 0; x < 14; ++x) {
      const Int32 depth = std::min({x, y, 13 - x, 13 - y});
      const Color wanted = depth == 0 ? Color{0x909090} : depth == 1 ? kWhite : host.palette.TheClut->getColor(index);
      if (host.pixel(left + x, top + y) != wanted) return false;
    }
  }
  return true;
}

TEST_F(zrClutPaletteTest, PaintsACellForEachEntryButTheLast) {
  for (const Int32 upperBound : {kLast, 31, 1, 0, -1}) {
    const Ref<Host> host = open(tableOf(upperBound), 130);
    for (Int32 y = 0; y < 130; ++y) {
      for (Int32 x = 0; x < 391; ++x)
        ASSERT_EQ(host->pixel(x, y), paintedAt(x, y, upperBound)) << upperBound << ": " << x << ", " << y;
    }
  }
  const Ref<Host> empty = open(nullptr);
  EXPECT_EQ(empty->pixel(5, 5), empty->BackColor.get()) << "nothing is painted without a table";
  EXPECT_EQ(New<Host>(105)->log, "open 0 12");
}

TEST_F(zrClutPaletteTest, AClickSelectsByWhereTheButtonGoesUp) {
  // At x = 390 stands no column: that is the next row's first cell. Of the cells from 240 on one row of pixels shows.
  // At 41 the frame is shared with the cell that was marked before.
  const struct {
    Int32 x, y, index;
    Int32 upperBound = kLast;
  } rows[] = {{0, 0, 0},      {12, 12, 0},     {13, 0, 1},     {0, 13, 30},      {150, 20, 41}, {390, 0, 30},
              {390, 104, -1}, {187, 104, 254}, {200, 104, -1}, {-12, 5, 0},      {-13, 18, 29}, {-13, 5, -1},
              {5, -13, -1},   {5, 5, -1, 0},   {5, 5, 0, 50},  {160, 20, -1, 42}};
  for (const auto& [x, y, index, upperBound] : rows) {
    const Ref<Host> host = open(tableOf(kLast));
    host->click(42);
    ASSERT_TRUE(isMarked(*host, 42));
    host->palette.TheClut->Count = upperBound;
    host->log = "";
    gesture::press(host->palette, 100, 100);
    gesture::release(host->palette, x, y);
    EXPECT_EQ(host->palette.Selected, index) << x << ", " << y;
    EXPECT_EQ(host->palette.LastSelection, 42);
    EXPECT_EQ(host->log, index < 0 ? "" : "action " + Str(index) + " " + Hex(toInt32(colorAt(index).bits)));
    EXPECT_TRUE(index < 0 || isMarked(*host, index)) << index;
    EXPECT_EQ(host->pixel(12 * kPitch + 13, 20), kBlack) << "the old mark is gone";
    EXPECT_EQ(host->pixel(12 * kPitch + 12, 20), upperBound < 42 ? kBlack : colorAt(42));
  }
  const Ref<Host> empty = open(nullptr);
  EXPECT_THROW(empty->palette.Event_MouseUp(5, 5), NilObjectException);
}

TEST_F(zrClutPaletteTest, APaintWipesTheMarkAndKeepsTheSelection) {
  const Ref<Host> host = open(tableOf(kLast));
  EXPECT_FALSE(isMarked(*host, 0)) << "selected but not marked at first";
  host->click(42);
  host->palette.SetClut(host->palette.TheClut);
  EXPECT_FALSE(isMarked(*host, 42));
  EXPECT_EQ(host->palette.Selected, 42);
}

TEST_F(zrClutPaletteTest, ADragBeginsBeyondSixPixelsAndCarriesTheColourSelectedBeforeThePress) {
  const struct {
    Int32 selected, right, down;
    bool begins;
  } rows[] = {{42, 7, 0, true},    {42, 0, -7, true},   {42, 6, 6, false},
              {42, -6, -6, false}, {-1, 50, 50, false}, {kLast + 1, 50, 0, false}};
  const Ref<Host> host = open(tableOf(kLast));
  for (const auto& [selected, right, down, begins] : rows) {
    host->palette.Selected = selected;
    const Ref<DragItem> item = gesture::pull(host->palette, 100, 50, 100 + right, 50 + down);
    ASSERT_EQ(static_cast<bool>(item), begins) << selected << ": " << right << ", " << down;
    if (begins) {
      const Color c = colorAt(selected);
      EXPECT_EQ(item->MacData("hcol"), Str(c.red()) + ", " + Str(c.green()) + ", " + Str(c.blue()));
      EXPECT_EQ(item->Text(), "#" + Hex(toInt32(c.bits)));
    }
    if (!begins) gesture::release(host->palette, 100, 50);
  }
}

TEST_F(zrClutPaletteTest, ADropGoesToTheSelectedCellWhereverItFalls) {
  const Ref<DragItem> orange = New<DragItem>(), text = New<DragItem>();
  orange->MacData("hcol", "255, 128, 0");
  text->SetText("#FF8000");
  const Ref<Host> host = open(tableOf(kLast));
  EXPECT_FALSE(gesture::drop(host->palette, *text));
  host->palette.Event_DropObject(text, 0);
  host->click(3);
  host->palette.SetClut(host->palette.TheClut);
  host->log = "";
  EXPECT_TRUE(gesture::drop(host->palette, *orange));
  EXPECT_EQ(host->palette.TheClut->getColor(3), Color{0xFF8000});
  EXPECT_TRUE(isMarked(*host, 3));
  EXPECT_EQ(host->log, "change 3 FF8000");

  host->palette.Selected = -1;
  host->log = "";
  const std::vector<Color> before = host->palette.TheClut->aColors;
  EXPECT_TRUE(gesture::drop(host->palette, *orange));
  EXPECT_EQ(host->palette.TheClut->aColors, before);
  EXPECT_EQ(host->log, "");
}

}  // namespace
}  // namespace tavrelkin
