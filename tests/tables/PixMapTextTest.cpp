// Pixel maps as text, written and read.

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
      {"h1E", false, true, 0x1E, 0}, {"H1E", true, true, 0x1E, 0}, {"d1E", false, false, '1', 1},
      {"D1E", true, true, 0x1E, 0},  {"1E", false, false, '1', 1}, {"1EF", true, true, 0x1E, 1},
      {"", false, false, 0, 0},      {"HH1E", false, true, 0, 1},  {"\xC3\xA4", false, false, 0xC3, 1},
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

}  // namespace
}  // namespace tavrelkin
