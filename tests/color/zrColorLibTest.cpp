#include <set>

#include <gtest/gtest.h>

#include "color/zrColorLib.h"

namespace tavrelkin {
namespace {

constexpr Color kOrange = RGB(255, 128, 0);

TEST(ColorTextTest, WritesEachForm) {
  struct Row {
    Color color;
    String rgb, hex, standard;
  };
  const Row rows[] = {
      {kOrange, "255, 128, 0", "FF8000", "Color: 255.128.0, 30.100.100, #FF8000"},
      {RGB(10, 11, 12), "10, 11, 12", "0A0B0C", "Color: 10.11.12, 210.16.4, #0A0B0C"},
      {kBlack, "0, 0, 0", "000000", "Color: 0.0.0, 0.0.0, #000000"},
      {RGB(255, 0, 1), "255, 0, 1", "FF0001", "Color: 255.0.1, 359.100.100, #FF0001"},  // a hue of 359.76
      {RGB(0, 0, 254), "0, 0, 254", "0000FE", "Color: 0.0.254, 240.100.99, #0000FE"},   // a value of 99.6
      {RGB(200, 199, 199), "200, 199, 199", "C8C7C7", "Color: 200.199.199, 0.0.78, #C8C7C7"},
  };
  for (const Row& row : rows) {
    EXPECT_EQ(getRGBStr(row.color), row.rgb);
    EXPECT_EQ(getHexStr(row.color), row.hex);
    EXPECT_EQ(getStdColorString(row.color), row.standard);
  }
}

TEST(ColorTextTest, ReadsBackWhatItWrites) {
  for (Int32 red = 0; red <= 255; red += 5) {
    for (Int32 green = 0; green <= 255; green += 15) {
      for (Int32 blue = 0; blue <= 255; blue += 17) {
        const Color c = RGB(red, green, blue);
        Color read;
        ASSERT_EQ(getColorFromRGB(getRGBStr(c)), c);
        ASSERT_EQ(getColorFromHex(getHexStr(c)), c);
        ASSERT_TRUE(getColorFromString(String("#").append(getHexStr(c)), read));
        ASSERT_EQ(read, c);
      }
    }
  }
}

TEST(ColorTextTest, ReadsHexadecimal) {
  struct Row {
    String text;
    Color color;
  };
  const Row rows[] = {
      {"ff8000", kOrange},  {"#F80", RGB(15, 8, 0)},         {"f80", RGB(15, 8, 0)}, {"1GGG0G", RGB(1, 0, 0)},
      {"# F+1-1", kBlack},  {"##12345", RGB(0, 0x23, 0x45)}, {"", kBlack},           {"#FF", kBlack},
      {"#FF80000", kBlack}, {"F0\xC3\xA4", RGB(15, 0, 0)},
  };
  for (const Row& row : rows)
    EXPECT_EQ(getColorFromHex(row.text), row.color) << row.text;
}

TEST(ColorTextTest, ReadsDecimalTriples) {
  struct Row {
    String text;
    Color color;
  };
  const Row rows[] = {
      {"255,128,0", kOrange}, {"  255 ,\t128x, 0 ", kOrange}, {"255.9,128.9,0.9,77", kOrange},
      {"7", RGB(7, 0, 0)},    {",,9", RGB(0, 0, 9)},          {"999,-5,1e99", RGB(255, 0, 255)},
      {"&hFF,&h80", kOrange}, {"1;2;3", RGB(1, 0, 0)},        {"", kBlack},
  };
  for (const Row& row : rows)
    EXPECT_EQ(getColorFromRGB(row.text), row.color) << row.text;
}

TEST(ColorTextTest, AcceptsWhatIsPasted) {
  struct Row {
    String text;
    Color color;
  };
  const Row rows[] = {
      {" \n#ff8000\r\n", kOrange}, {"#GGGGGG", kBlack}, {"255.128.0", RGB(255, 0, 0)},
      {"1.5,2.5,3", RGB(1, 2, 3)}, {"..", kBlack},      {"#12.4.6", kBlack},
  };
  for (const Row& row : rows) {
    Color out = kWhite;
    EXPECT_TRUE(getColorFromString(row.text, out)) << row.text;
    EXPECT_EQ(out, row.color) << row.text;
  }
}

TEST(ColorTextTest, RefusesOtherTextAndKeepsTheColor) {
  const String refused[] = {
      "", "FF8000", "#FF80", "#FF80000", "255, 128, 0", "1.2", "1.2.3.4", "#F80", getStdColorString(kOrange)};
  for (const String& text : refused) {
    Color out = kOrange;
    EXPECT_FALSE(getColorFromString(text, out)) << text;
    EXPECT_EQ(out, kOrange) << text;
    EXPECT_FALSE(zrColorLib_IsColorWebSafe(text)) << text;
  }
}

TEST(ColorDropTest, ReadsThePrivatePayload) {
  EXPECT_EQ(getColorFromDrop(nullptr), kBlack);
  const auto item = New<DragItem>();
  item->SetText("#FFFFFF");
  item->MacData("HCOL", "1, 2, 3");
  EXPECT_EQ(getColorFromDrop(item), kBlack);
  item->MacData("hcol", getRGBStr(kOrange));
  EXPECT_EQ(getColorFromDrop(item), kOrange);
}

TEST(ColorDropTest, ReadsTheText) {
  Color out = kWhite;
  EXPECT_FALSE(getColorFromTextDrop(nullptr, out));
  const auto item = New<DragItem>();
  item->MacData("hcol", "1, 2, 3");
  item->SetText("1, 2, 3");
  EXPECT_FALSE(getColorFromTextDrop(item, out));
  EXPECT_EQ(out, kWhite);
  item->SetText(" #FF8000\n");
  EXPECT_TRUE(getColorFromTextDrop(item, out));
  EXPECT_EQ(out, kOrange);
}

TEST(WebSafeTest, MovesEachChannelToTheNearestStep) {
  for (Int32 channel = 0; channel <= 255; ++channel) {
    const Int32 step = (channel + 25) / 51 * 51;
    EXPECT_EQ(zrColorLib_MakeWebSafe(RGB(channel, 0, 255)), RGB(step, 0, 255)) << channel;
    EXPECT_EQ(zrColorLib_MakeWebSafe(RGB(51, channel, 1)), RGB(51, step, 0)) << channel;
    EXPECT_EQ(zrColorLib_MakeWebSafe(RGB(254, 77, channel)), RGB(255, 102, step)) << channel;
  }
}

TEST(WebSafeTest, AcceptsElevenValuesInEachChannel) {
  const std::set<Int32> accepted = {0, 3, 51, 54, 102, 105, 153, 156, 204, 207, 255};
  for (Int32 channel = 0; channel <= 255; ++channel) {
    const bool safe = accepted.contains(channel);
    EXPECT_EQ(zrColorLib_IsColorWebSafe(RGB(channel, 51, 255)), safe) << channel;
    EXPECT_EQ(zrColorLib_IsColorWebSafe(RGB(0, channel, 207)), safe) << channel;
    EXPECT_EQ(zrColorLib_IsColorWebSafe(RGB(102, 0, channel)), safe) << channel;
  }
}

TEST(WebSafeTest, TestsTextsAndNoOtherType) {
  EXPECT_TRUE(zrColorLib_IsColorWebSafe("#336699"));
  EXPECT_TRUE(zrColorLib_IsColorWebSafe("51.0.0"));
  EXPECT_FALSE(zrColorLib_IsColorWebSafe("#336698"));
  EXPECT_FALSE(zrColorLib_IsColorWebSafe(0));
}

}  // namespace
}  // namespace tavrelkin
