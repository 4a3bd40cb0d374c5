// Pixel maps as text, written and read.

#include <algorithm>
#include <random>

#include "runtime/drawing/Picture.h"
#include "support/RuntimeTest.h"
#include "tables/zrPixMap.h"

namespace tavrelkin {
namespace {

// Three pixels by one, of 8 bits: black, magenta, and a colour whose bytes look like a character of three. Magenta is
// transparent.
constexpr std::string_view kDigits = "H0003010802000000FF00FFE282AC01000102";
const String kBytes("D\x00\x03\x01\x08\x02\x00\x00\x00\xFF\x00\xFF\xE2\x82\xAC\x01\x00\x01\x02", 19);

// Lets a test read numbers one by one.
class Reader : public zrPixMap {
 public:
  using zrPixMap::int_pixBuffeLoad;
  using zrPixMap::int_pixBufferGetColor;
  using zrPixMap::int_pixBufferGetInteger;
  using zrPixMap::int_pixBufferGetPixMap;
};

String fields(const zrPixMap& map) {
  String all = map.hexadecimal ? "hexadecimal" : "bytes";
  for (const Int32 number : {map.version, map.width, map.height, map.depth, map.colorCount})
    all += " " + Str(number);
  for (const Color c : map.colors)
    all += " " + Hex(static_cast<Int32>(c.bits));
  return all + " mask " + Str(map.MaskColorIdx) + " " + Hex(static_cast<Int32>(map.MaskColor.bits)) + " pixels " +
         Str(LenB(map.pixmap));
}

// A picture that uses so many colours besides black and white.
Ref<Picture> colourful(Int32 width, Int32 height, Int32 colours) {
  Ref<Picture> picture = NewPicture(width, height, 32);
  for (Int32 i = 0; i < colours; ++i)
    picture->Graphics().Pixel(i % width, i / width, RGB(1, 1, 1 + i));
  return picture;
}

class PixMapTextTest : public RuntimeTest {
 protected:
  Ref<Reader> map = New<Reader>();
};

TEST_F(PixMapTextTest, ATextIsReadFieldByFieldAndWrittenAgain) {
  map->CreateFromPixMapData(kDigits);
  EXPECT_EQ(fields(*map), "hexadecimal 0 3 1 8 2 0 FF00FF E282AC mask 1 FF00FF pixels 6");
  EXPECT_EQ(map->getPixMapData(), kDigits);
  const Ref<Reader> bytes = New<Reader>();
  bytes->CreateFromPixMapData(kBytes);
  EXPECT_EQ(fields(*bytes), "bytes 0 3 1 8 2 0 FF00FF E282AC mask 1 FF00FF pixels 3");
  EXPECT_EQ(bytes->getPixMapData(), kBytes);
  for (const Ref<Reader>& each : {map, bytes}) {
    const Ref<Picture> picture = each->GetPicture32();
    EXPECT_EQ(picture->RGBSurface().Pixel(2, 0), Color{0xE282AC});
    EXPECT_EQ(picture->Mask(false)->RGBSurface().Pixel(0, 0), kBlack);
    EXPECT_EQ(picture->Mask(false)->RGBSurface().Pixel(1, 0), kWhite);
  }
}

TEST_F(PixMapTextTest, AWrittenTextHasTheLengthOfItsFieldsAndIsReadBackTheSame) {
  const struct { Int32 width, height, colours; } rows[] = {{1, 1, 0}, {13, 13, 6}, {255, 1, 254}, {255, 255, 254}};
  for (const auto& row : rows) {
    for (const bool hexadecimal : {true, false}) {
      const Ref<zrPixMap> made = New<zrPixMap>();
      made->hexadecimal = hexadecimal;
      made->CreateFromPicture(colourful(row.width, row.height, row.colours));
      made->setMaskColor(kWhite);
      const String text = made->getPixMapData();
      const Int32 n = row.colours + 2;
      const Int32 pixels = row.width * row.height;
      EXPECT_EQ(LenB(text), hexadecimal ? 1 + 10 + 6 * n + 2 + 2 * pixels : 1 + 5 + 3 * n + 1 + pixels);
      EXPECT_TRUE(!hexadecimal || text.find_first_not_of("0123456789ABCDEF", 1) == String::npos);
      const Ref<zrPixMap> read = New<zrPixMap>();
      read->CreateFromPixMapData(text);
      EXPECT_EQ(fields(*read), fields(*made));
      EXPECT_EQ(read->pixmap, made->pixmap);
    }
  }
}

TEST_F(PixMapTextTest, PixelsGoIntoATextAsTheyAre) {
  map->hexadecimal = true;
  map->CreateFromPicture(NewPicture(2, 1, 32));
  map->hexadecimal = false;
  EXPECT_EQ(map->getPixMapData(), String("D\x00\x02\x01\x20\x01\x00\x00\x00\xFF\xFF\xFF\x00"
                                         "0101",
                                         17));
}

TEST_F(PixMapTextTest, AnotherVersionIsRefusedAndChangesNothing) {
  map->CreateFromPixMapData(kBytes);
  const String before = map->getPixMapData();
  map->CreateFromPixMapData(String("D\x01\x09\x09", 4));
  EXPECT_EQ(map->getPixMapData(), before);
  map->CreateFromPixMapData("H01090920");
  const std::vector<std::string> expected(2, "Incompatible TxPixelMap Version.");
  EXPECT_EQ(fake().messages, expected);
  EXPECT_TRUE(map->hexadecimal);
  map->hexadecimal = false;
  EXPECT_EQ(map->getPixMapData(), before);
}

TEST_F(PixMapTextTest, TheFormLetterOnlyEverTurnsDigitsOn) {
  const struct {
    String text;
    bool before, after;
    Int32 first;
    Int32 left;  // bytes, behind the first number
  } rows[] = {
      {"H1E", false, true, 0x1E, 0}, {"h1E", false, true, 0x1E, 0}, {"H1E", true, true, 0x1E, 0},
      {"D1E", false, false, '1', 1}, {"d1E", false, false, '1', 1}, {"D1E", true, true, 0x1E, 0},
      {"1E", false, false, '1', 1},  {"1EF", true, true, 0x1E, 1},  {"\xC3\xA4", false, false, 0xC3, 1},
      {"", false, false, 0, 0},      {"H", false, true, 0, 0},      {"HH1E", false, true, 0, 1},
      {"D", false, false, 0, 0},     {"DD", false, false, 'D', 0},  {String("D\0\xFF", 3), false, false, 0, 1},
  };
  for (const auto& row : rows) {
    map->hexadecimal = row.before;
    map->int_pixBuffeLoad(row.text);
    EXPECT_EQ(map->hexadecimal, row.after) << row.text;
    EXPECT_EQ(map->int_pixBufferGetInteger(), row.first) << row.text;
    EXPECT_EQ(LenB(map->int_pixBufferGetPixMap()), row.left) << row.text;
  }
}

TEST_F(PixMapTextTest, DigitsThatAreNoneAreLeftToTheReaderOfNumbers) {
  map->int_pixBuffeLoad(
      String("HfF1GG1 F-1\0"
             "1&hA",
             16));
  for (const Int32 number : {255, 1, 0, 0, 0, 0, 0, 10, 0, 0})
    EXPECT_EQ(map->int_pixBufferGetInteger(), number);
  map->int_pixBuffeLoad("HFE01A");
  EXPECT_EQ(map->int_pixBufferGetColor(), Color{0xFE010A});
  EXPECT_EQ(map->int_pixBufferGetColor(), kBlack);
  EXPECT_EQ(map->int_pixBufferGetPixMap(), "");
}

TEST_F(PixMapTextTest, NumbersAreWrittenInUpperCaseAndWithTwoDigits) {
  for (const auto& [number, digits] : {std::pair{0, "00"}, {9, "09"}, {13, "0D"}, {171, "AB"}, {255, "FF"}}) {
    for (const bool hexadecimal : {true, false}) {
      map->hexadecimal = hexadecimal;
      EXPECT_EQ(map->int_Hex(number), digits);
      EXPECT_EQ(map->int_ENC(number), hexadecimal ? String(digits) : ChrB(number));
    }
  }
}

// What a text is too short for counts as 0, as if so many zeros stood there.
TEST_F(PixMapTextTest, ATextMayEndAnywhere) {
  for (const String& text : {String(kDigits), kBytes}) {
    const bool hexadecimal = text[0] == 'H';
    for (std::size_t length = 1; length <= text.size(); length += hexadecimal ? 2 : 1) {
      const Ref<zrPixMap> cut = New<zrPixMap>();
      cut->CreateFromPixMapData(text.substr(0, length));
      const Ref<zrPixMap> filled = New<zrPixMap>();
      filled->CreateFromPixMapData(text.substr(0, length) + String(50, hexadecimal ? '0' : '\0'));
      EXPECT_LE(LenB(cut->pixmap), hexadecimal ? 6 : 3) << length;
      filled->pixmap = cut->pixmap;
      EXPECT_EQ(fields(*cut), fields(*filled)) << length;
      const Ref<Picture> picture = cut->GetPicture32();
      EXPECT_EQ(static_cast<bool>(picture), cut->depth != 0) << length;
      const bool blackLast = length < text.size() && picture;
      EXPECT_TRUE(!blackLast || picture->RGBSurface().Pixel(2, 0) == cut->GetColor(0)) << length;
    }
  }
  EXPECT_TRUE(fake().messages.empty());
}

TEST_F(PixMapTextTest, AnyTextIsReadAndDrawnWithinTheBoundsOfTheForm) {
  std::mt19937 random(7);
  const auto below = [&random](std::size_t limit) { return random() % limit; };
  const Ref<Picture> paper = NewPicture(20, 20, 32);
  for (int round = 0; round < 1500; ++round) {
    String text = round % 3 == 0 ? "" : round % 3 == 1 ? "H00" : String("D\0", 2);
    for (std::size_t i = below(round % 2 == 0 ? 12 : 1500); i > 0; --i) {
      text += below(4) == 0 ? static_cast<char>(below(256)) : "0123456789ABCDEFabcdef&hHD-. "[below(29)];
    }
    const Ref<zrPixMap> read = New<zrPixMap>();
    read->hexadecimal = below(2) == 0;
    read->CreateFromPixMapData(text);
    ASSERT_EQ(read->colors.size(), static_cast<std::size_t>(read->colorCount) + 1);
    ASSERT_LE(std::max({read->width, read->height, read->depth, read->colorCount, read->MaskColorIdx}), 255);
    ASSERT_LE(read->pixmap.size(), text.size());
    if (round % 10 != 1) continue;
    read->DrawPixMap(&paper->Graphics(), -3, 2);
    read->DrawPixMapMask(&paper->Graphics(), 5, -100);
    read->GetPicture32();
    const Ref<zrPixMap> again = New<zrPixMap>();
    again->CreateFromPixMapData(read->getPixMapData());
    ASSERT_TRUE(!read->hexadecimal || fields(*again) == fields(*read)) << text;
  }
}

}  // namespace
}  // namespace tavrelkin
