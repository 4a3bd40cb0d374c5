#include <set>

#include <gtest/gtest.h>

#include "color/zrColorLib.h"

namespace tavrelkin {
namespace {

constexpr Color kOrange = RGB(255, 128, 0);

TEST(ColorTextTest, AllNumbersAreCutDownToWholeOnes) {
  const std::pair<Color, const char*> rows[] = {
      {kOrange, "Color: 255.128.0, 30.100.100, #FF8000"},
      {RGB(10, 11, 12), "Color: 10.11.12, 210.16.4, #0A0B0C"},
      {RGB(255, 0, 1), "Color: 255.0.1, 359.100.100, #FF0001"},  // a hue of 359.76
      {RGB(0, 0, 254), "Color: 0.0.254, 240.100.99, #0000FE"},   // a value of 99.6
  };
  for (const auto& [color, text] : rows)
    EXPECT_EQ(getStdColorString(color), text);
  EXPECT_EQ(getRGBStr(kOrange), "255, 128, 0");
}

Color pasted(const String& text) {
  Color c = kWhite;
  EXPECT_TRUE(getColorFromString(text, c)) << text;
  return c;
}

TEST(ColorTextTest, ReadsWhatPeopleWrite) {
  const std::tuple<Color (*)(const String&), const char*, Color> rows[] = {
      {getColorFromHex, "ff8000", kOrange},
      {getColorFromHex, "#F80", RGB(15, 8, 0)},
      {getColorFromHex, "# F+1-1", kBlack},
      {getColorFromHex, "##12345", RGB(0, 0x23, 0x45)},
      {getColorFromHex, "#FF80000", kBlack},
      {getColorFromHex, "F0\xC3\xA4", RGB(15, 0, 0)},
      {getColorFromRGB, "  255.9 ,\t128x, 0 ,77", kOrange},
      {getColorFromRGB, ",,9", RGB(0, 0, 9)},
      {getColorFromRGB, "999,-5,1e99", RGB(255, 0, 255)},
      {getColorFromRGB, "&hFF,&h80", kOrange},
      {pasted, " \n#ff8000\r\n", kOrange},
      {pasted, "255.128.0", RGB(255, 0, 0)},
      {pasted, "1.5,2.5,3", RGB(1, 2, 3)},
      {pasted, "#12.4.6", kBlack},
  };
  for (const auto& [read, text, color] : rows)
    EXPECT_EQ(read(text), color) << text;
}

TEST(ColorTextTest, RefusesOtherTextAndKeepsTheColor) {
  for (const String text :
       {"", "FF8000", "#FF80", "#FF80000", "255, 128, 0", "1.2", "1.2.3.4", "#\xC3\xA4\xC3\xA4\xC3\xA4"}) {
    Color out = kOrange;
    EXPECT_FALSE(getColorFromString(text, out)) << text;
    EXPECT_EQ(out, kOrange) << text;
    EXPECT_FALSE(zrColorLib_IsColorWebSafe(text)) << text;
  }
}

TEST(ColorDropTest, NothingIsBlackAndNoText) {
  Color out = kOrange;
  EXPECT_EQ(getColorFromDrop(nullptr), kBlack);
  EXPECT_FALSE(getColorFromTextDrop(nullptr, out));
  EXPECT_FALSE(getColorFromTextDrop(New<DragItem>(), out));
  EXPECT_EQ(out, kOrange);
}

TEST(WebSafeTest, EachChannelMovesToTheNearestStepAndElevenValuesNeedNoMove) {
  const std::set<Int32> accepted = {0, 3, 51, 54, 102, 105, 153, 156, 204, 207, 255};
  for (Int32 channel = 0; channel <= 255; ++channel) {
    const Int32 step = (channel + 25) / 51 * 51;
    EXPECT_EQ(zrColorLib_MakeWebSafe(RGB(channel, 0, 255)), RGB(step, 0, 255)) << channel;
    EXPECT_EQ(zrColorLib_MakeWebSafe(RGB(51, channel, 1)), RGB(51, step, 0)) << channel;
    EXPECT_EQ(zrColorLib_MakeWebSafe(RGB(254, 77, channel)), RGB(255, 102, step)) << channel;
    const bool safe = accepted.contains(channel);
    EXPECT_EQ(zrColorLib_IsColorWebSafe(RGB(channel, 51, 255)), safe) << channel;
    EXPECT_EQ(zrColorLib_IsColorWebSafe(RGB(0, channel, 207)), safe) << channel;
    EXPECT_EQ(zrColorLib_IsColorWebSafe("#6600" + getHexStr(RGB(0, 0, channel)).substr(4)), safe) << channel;
  }
  EXPECT_FALSE(zrColorLib_IsColorWebSafe(0)) << "no other type is a colour";
}

}  // namespace
}  // namespace tavrelkin
