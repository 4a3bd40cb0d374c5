// Pixel maps made from pictures, and drawn.

#include <limits>

#include "runtime/drawing/Picture.h"
#include "support/RuntimeTest.h"
#include "tables/zrPixMap.h"

namespace tavrelkin {
namespace {

using Bits = std::vector<std::uint32_t>;

constexpr std::uint32_t kGround = 0x404040;

Ref<Picture> pictureOf(Int32 width, const Bits& pixels) {
  Ref<Picture> picture = NewPicture(width, static_cast<Int32>(pixels.size()) / width, 32);
  for (Int32 i = 0; i < static_cast<Int32>(pixels.size()); ++i) {
    picture->Graphics().Pixel(i % width, i / width, Color{pixels[static_cast<std::size_t>(i)]});
  }
  return picture;
}

Ref<Picture> ground(Int32 width, Int32 height) {
  return pictureOf(width, Bits(static_cast<std::size_t>(width) * static_cast<std::size_t>(height), kGround));
}

Bits pixelsOf(const Picture& picture) {
  Bits pixels;
  for (Int32 y = 0; y < picture.Height(); ++y) {
    for (Int32 x = 0; x < picture.Width(); ++x)
      pixels.push_back(picture.RGBSurface().Pixel(x, y).bits);
  }
  return pixels;
}

Bits tableOf(const zrPixMap& map) {
  Bits table;
  for (const Color c : map.colors)
    table.push_back(c.bits);
  return table;
}

class zrPixMapTest : public RuntimeTest {
 protected:
  // A map of one row: black, white, red, green and a pixel whose index the table lacks.
  zrPixMapTest() {
    map->colors = {kBlack, kWhite, Color{0xFF0000}, Color{0x00FF00}};
    map->colorCount = 3;
    map->width = 5;
    map->height = 1;
    map->depth = 32;
    map->pixmap = String("\x00\x01\x02\x03\x09", 5);
  }

  Ref<zrPixMap> map = New<zrPixMap>();
  Ref<zrPixMap> fresh = New<zrPixMap>();
};

TEST_F(zrPixMapTest, ColoursFollowBlackAndWhiteAsTheyAppear) {
  const struct {
    const char* name;
    Bits pixels;
    Bits table;
    String indexes;
  } rows[] = {
      {"all black", {0, 0}, {0, 0xFFFFFF}, "0000"},
      {"others", {0x00FF00, 0xFFFFFF, 1, 0x00FF00, 0, 1}, {0, 0xFFFFFF, 0x00FF00, 1}, "020103020003"},
  };
  for (const auto& row : rows) {
    const Ref<zrPixMap> made = New<zrPixMap>();
    made->hexadecimal = true;
    made->CreateFromPicture(pictureOf(2, row.pixels));
    EXPECT_EQ(tableOf(*made), row.table) << row.name;
    EXPECT_EQ(made->colorCount, static_cast<Int32>(row.table.size()) - 1) << row.name;
    EXPECT_EQ(made->pixmap, row.indexes) << row.name;
    EXPECT_EQ(pixelsOf(*made->GetPicture()), row.pixels) << row.name;
  }
}

TEST_F(zrPixMapTest, AFullTableGivesTheFirstEntryForFurtherColours) {
  Bits pixels;
  for (std::uint32_t i = 0; i < 300; ++i)
    pixels.push_back(0x100000 + i);
  fresh->CreateFromPicture(pictureOf(20, pixels));
  EXPECT_EQ(fresh->colorCount, 255);
  EXPECT_EQ(fresh->colors.size(), 256u);
  for (Int32 i = 0; i < 300; ++i)
    EXPECT_EQ(AscB(MidB(fresh->pixmap, i + 1, 1)), i < 254 ? i + 2 : 0) << i;
  EXPECT_TRUE(fake().messages.empty());
}

TEST_F(zrPixMapTest, WhatIsTooLargeOrNoPictureIsRefused) {
  const String before = map->getPixMapData();
  for (const Ref<Picture>& refused : {NewPicture(256, 1, 8), NewPicture(1, 256, 8), Ref<Picture>()})
    map->CreateFromPicture(refused);
  EXPECT_EQ(map->getPixMapData(), before);
  map->DrawPixMap(nullptr, 0, 0);
  EXPECT_FALSE(fresh->GetPicture()) << "it has no size";
  const std::vector<std::string> expected{"Unable to create pixmap image is to large",
                                          "Unable to create pixmap image is to large", "Unable to create pixmap",
                                          "Unable to draw pixmap", "Unable to create picture from Pixmap"};
  EXPECT_EQ(fake().messages, expected);
  fresh->CreateFromPicture(NewPicture(255, 255, 8));
  EXPECT_EQ(LenB(fresh->pixmap), 255 * 255);
}

TEST_F(zrPixMapTest, ANewFillKeepsTheFirstColourAndTheMask) {
  map->colors[0] = Color{0x0000FF};
  map->MaskColorIdx = 2;
  map->MaskColor = Color{0xFF0000};
  map->CreateFromPicture(pictureOf(3, {0, 0x0000FF, 0xFFFFFF}));
  EXPECT_EQ(tableOf(*map), Bits({0x0000FF, 0xFFFFFF, 0}));
  EXPECT_EQ(map->pixmap, String("\x02\x00\x01", 3));
  EXPECT_EQ(map->MaskColorIdx, 2);
  EXPECT_EQ(map->MaskColor, Color{0xFF0000});
  EXPECT_EQ(pixelsOf(*map->GetPicture()), Bits({0, 0x0000FF, 0xFFFFFF})) << "the mask's index means black by now";
}

TEST_F(zrPixMapTest, AMaskedPictureIsTakenAsItLooksOnWhite) {
  const Ref<Picture> stamp = pictureOf(2, {0xFF0000, 0xFF0000});
  stamp->Mask(true)->Graphics().Pixel(1, 0, kBlack);
  fresh->CreateFromPicture(stamp);
  EXPECT_EQ(pixelsOf(*fresh->GetPicture()), Bits({0xFFFFFF, 0xFF0000}));
}

TEST_F(zrPixMapTest, AColourIsBlackOutsideOfTheTable) {
  for (const auto& [index, bits] : {std::pair{-1, 0u}, {2, 0xFF0000u}, {3, 0x00FF00u}, {4, 0u}})
    EXPECT_EQ(map->GetColor(index), Color{bits}) << index;
  map->colorCount = 4;
  EXPECT_THROW(map->GetColor(4), OutOfBoundsException);
}

TEST_F(zrPixMapTest, TheTransparentColourIsFoundOrAdded) {
  const struct {
    std::uint32_t color;
    Int32 index, count;
  } rows[] = {{0xFF00FF, 4, 4}, {0x00FF00, 3, 4}, {0xFF00FF, 4, 4}};
  map->depth = 8;
  for (const auto& row : rows) {
    map->setMaskColor(Color{row.color});
    EXPECT_EQ(map->MaskColorIdx, row.index);
    EXPECT_EQ(map->colorCount, row.count);
  }
  EXPECT_EQ(map->GetPicture()->Depth(), 32) << "a mask takes all of it";
  for (const auto& [mask, depth] : {std::pair{kWhite, 32}, {kBlack, 8}}) {
    map->setMaskColor(mask);
    map->CreateFromPicture(NewPicture(2, 2, 8));
    EXPECT_EQ(map->depth, depth);
  }
}

// The two painters disagree about black: the image shows it, the mask hides it.
TEST_F(zrPixMapTest, ThePaintersFollowTheIndexOfTheMask) {
  constexpr std::uint32_t on = 0;
  constexpr std::uint32_t off = 0xFFFFFF;
  const struct {
    Int32 index;
    std::uint32_t maskColor;
    Bits drawn;
    Bits mask;
  } rows[] = {
      {0, 0, {0, 0xFFFFFF, 0xFF0000, 0x00FF00, 0}, {off, on, on, on, off}},
      {1, 0xFFFFFF, {0, kGround, 0xFF0000, 0x00FF00, 0}, {on, off, on, on, on}},
      {2, 0xFF0000, {0, 0xFFFFFF, kGround, 0x00FF00, 0}, {on, on, off, on, on}},
      {9, 0, {0, 0xFFFFFF, 0xFF0000, 0x00FF00, 0}, {off, on, on, on, off}},
  };
  for (const auto& row : rows) {
    map->MaskColorIdx = row.index;
    map->MaskColor = Color{0x00FF00};
    const Ref<Picture> drawn = ground(5, 1);
    map->DrawPixMap(&drawn->Graphics(), 0, 0);
    EXPECT_EQ(pixelsOf(*drawn), row.drawn) << row.index;
    EXPECT_EQ(map->MaskColor, Color{row.maskColor}) << row.index;
    map->MaskColor = Color{0x00FF00};
    const Ref<Picture> mask = ground(5, 1);
    map->DrawPixMapMask(&mask->Graphics(), 0, 0);
    EXPECT_EQ(pixelsOf(*mask), row.mask) << row.index;
    EXPECT_EQ(map->MaskColor, Color{row.maskColor}) << row.index;
    EXPECT_EQ(pixelsOf(*map->GetPicture32()->Mask(false)), row.mask) << row.index;
  }
}

TEST_F(zrPixMapTest, DrawingIsClippedAnywhere) {
  constexpr Int32 most = std::numeric_limits<Int32>::max();
  const struct {
    Int32 x, y;
    Bits drawn;
  } rows[] = {{-2, 0, {0xFF0000, 0x00FF00}}, {1, 0, {kGround, 0}}, {most, most, {kGround, kGround}}};
  for (const auto& row : rows) {
    const Ref<Picture> drawn = ground(2, 1);
    map->DrawPixMap(&drawn->Graphics(), row.x, row.y);
    EXPECT_EQ(pixelsOf(*drawn), row.drawn) << row.x << " " << row.y;
  }
}

}  // namespace
}  // namespace tavrelkin
