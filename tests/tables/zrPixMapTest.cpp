// Pixel maps made from pictures and drawn, written as text and read.

#include <limits>

#include "fakes/RuntimeTest.h"
#include "runtime/core/drawing/Picture.h"
#include "tables/zrPixMap.h"

namespace tavrelkin {
namespace {

using Bits = std::vector<std::uint32_t>;

constexpr std::uint32_t kGround = 0x404040;

// A map of 3 by 1 pixels and a depth of 8: black, magenta, and a colour whose three bytes are a character in UTF-8.
// Magenta is transparent.
const String kDigits = "H0003010802000000FF00FFE282AC01000102";
const String kBytes("D\x00\x03\x01\x08\x02\x00\x00\x00\xFF\x00\xFF\xE2\x82\xAC\x01\x00\x01\x02", 19);

Ref<Picture> pictureOf(Int32 width, const Bits& pixels) {
  Ref<Picture> picture = NewPicture(width, static_cast<Int32>(pixels.size()) / width, 32);
  for (Int32 i = 0; i < static_cast<Int32>(pixels.size()); ++i)
    picture->Graphics().Pixel(i % width, i / width, Color{pixels[static_cast<std::size_t>(i)]});
  return picture;
}

Bits pixelsOf(const Picture& picture) {
  Bits pixels;
  for (Int32 i = 0; i < picture.Width() * picture.Height(); ++i)
    pixels.push_back(picture.RGBSurface().Pixel(i % picture.Width(), i / picture.Width()).bits);
  return pixels;
}

class zrPixMapTest : public RuntimeTest {
 protected:
  // A map of one row: black, white, red, green, and a pixel whose index is not in the table.
  zrPixMapTest() { map->CreateFromPixMapData("H0005012003000000FFFFFFFF000000FF00000001020309"); }

  // The pixels of a grey picture, one row of `width` pixels, after `draw`.
  static Bits drawn(Int32 width, const std::function<void(Graphics&)>& draw) {
    const Ref<Picture> ground = pictureOf(width, Bits(static_cast<std::size_t>(width), kGround));
    draw(ground->Graphics());
    return pixelsOf(*ground);
  }

  Ref<zrPixMap> map = New<zrPixMap>();
  Ref<zrPixMap> fresh = New<zrPixMap>();
};

TEST_F(zrPixMapTest, ColorsFollowBlackAndWhiteAsTheyAppear) {
  fresh->hexadecimal = true;
  const Bits pixels{0x00FF00, 0xFFFFFF, 1, 0x00FF00, 0, 1};
  fresh->CreateFromPicture(pictureOf(2, pixels));
  EXPECT_EQ(fresh->getPixMapData(), "H0002032003000000FFFFFF00FF0000000100020103020003");
  EXPECT_EQ(pixelsOf(*fresh->GetPicture()), pixels);

  const Ref<Picture> stamp = pictureOf(3, {0, 0x0000FF, 0xFF0000});
  stamp->Mask(true)->Graphics().Pixel(2, 0, kBlack);
  map->colors[0] = Color{0x0000FF};
  map->MaskColorIdx = 2;
  map->CreateFromPicture(stamp);
  EXPECT_EQ(map->getPixMapData(), "H00030120020000FFFFFFFFFF000002010102") << "first colour and mask stay";
}

TEST_F(zrPixMapTest, AFullTableGivesTheFirstEntryForFurtherColors) {
  Bits pixels;
  String indexes;
  for (Int32 i = 0; i < 255; ++i) {
    pixels.push_back(0x100000 + static_cast<std::uint32_t>(i));
    indexes += ChrB(i < 254 ? i + 2 : 0);
  }
  fresh->CreateFromPicture(pictureOf(255, pixels));
  EXPECT_EQ(fresh->pixmap, indexes);
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
  map->colorCount = 4;
  EXPECT_THROW(map->GetColor(4), OutOfBoundsException);
}

TEST_F(zrPixMapTest, TheTransparentColorIsFoundOrAddedAndTakes32Bits) {
  const std::tuple<std::uint32_t, Int32, Int32> rows[] = {{0xFF00FF, 4, 32}, {0xFFFFFF, 1, 32}, {0, 0, 24}};
  for (const auto& [color, index, depth] : rows) {
    map->setMaskColor(Color{color});
    EXPECT_EQ(map->MaskColorIdx, index);
    map->depth = 24;
    EXPECT_EQ(map->GetPicture()->Depth(), depth);
    map->CreateFromPicture(NewPicture(2, 2, 24));
    EXPECT_EQ(map->depth, depth);
  }
}

// The two operations treat a black mask colour differently: DrawPixMap draws it, the mask hides it.
TEST_F(zrPixMapTest, ThePaintersFollowTheIndexOfTheMask) {
  constexpr std::uint32_t on = 0;
  constexpr std::uint32_t off = 0xFFFFFF;
  const std::tuple<Int32, Bits, Bits> rows[] = {
      {0, {0, 0xFFFFFF, 0xFF0000, 0x00FF00, 0}, {off, on, on, on, off}},
      {1, {0, kGround, 0xFF0000, 0x00FF00, 0}, {on, off, on, on, on}},
      {9, {0, 0xFFFFFF, 0xFF0000, 0x00FF00, 0}, {off, on, on, on, off}},
  };
  for (const auto& [index, image, mask] : rows) {
    map->MaskColorIdx = index;
    map->MaskColor = Color{0x00FF00};
    EXPECT_EQ(drawn(5, [&](Graphics& g) { map->DrawPixMap(&g, 0, 0); }), image) << index;
    map->MaskColor = Color{0x00FF00};
    EXPECT_EQ(drawn(5, [&](Graphics& g) { map->DrawPixMapMask(&g, 0, 0); }), mask) << index;
    EXPECT_EQ(pixelsOf(*map->GetPicture32()->Mask(false)), mask) << index;
  }
}

// A text that is too short is read as if zeros followed.
TEST_F(zrPixMapTest, ATextMayEndAnywhere) {
  for (const String& text : {kDigits, kBytes}) {
    const bool hexadecimal = text[0] == 'H';
    for (std::size_t length = 1; length < text.size(); length += hexadecimal ? 2 : 1) {
      const Ref<zrPixMap> cut = New<zrPixMap>();
      cut->CreateFromPixMapData(text.substr(0, length));
      const Ref<zrPixMap> filled = New<zrPixMap>();
      filled->CreateFromPixMapData(text.substr(0, length) + String(50, hexadecimal ? '0' : '\0'));
      EXPECT_LE(LenB(cut->pixmap), hexadecimal ? 6 : 3) << length;
      filled->pixmap = cut->pixmap;
      EXPECT_EQ(cut->getPixMapData(), filled->getPixMapData()) << length;
      const Ref<Picture> picture = cut->GetPicture32();
      EXPECT_EQ(static_cast<bool>(picture), cut->width > 0 && cut->height > 0) << length;
      EXPECT_TRUE(!picture || picture->RGBSurface().Pixel(2, 0) == cut->GetColor(0)) << length;
    }
  }
}

}  // namespace
}  // namespace tavrelkin
