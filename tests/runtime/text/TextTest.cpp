#include <limits>
#include <vector>

#include <gtest/gtest.h>

#include "runtime/text/Text.h"

namespace tavrelkin {
namespace {

constexpr Int32 kLeast = std::numeric_limits<Int32>::min();
constexpr Int32 kMost = std::numeric_limits<Int32>::max();
constexpr Double kNaN = std::numeric_limits<Double>::quiet_NaN();

// Characters of 1, 2, 3 and 4 bytes.
const String kWide = "a\xC3\xA4\xE2\x82\xAC\xF0\x9F\x8E\xA8";

TEST(TextTest, WritesNumbers) {
  EXPECT_EQ(Str(kLeast), "-2147483648");
  EXPECT_EQ(Hex(0), "0");
  EXPECT_EQ(Hex(0x1FA), "1FA");
  EXPECT_EQ(Hex(-1), "FFFFFFFF");
}

TEST(TextTest, FormatsWithLeadingZeros) {
  struct Row {
    Double value;
    String text;
  };
  const Row rows[] = {
      {7, "007"},   {1234, "1234"}, {0.4, "000"},  {0.5, "001"},  {2.5, "003"},
      {-7, "-007"}, {-0.5, "-001"}, {-0.4, "000"}, {-0.0, "000"}, {kNaN, "000"},
  };
  for (const Row& row : rows)
    EXPECT_EQ(Format(row.value, "000"), row.text) << row.value;
  EXPECT_EQ(Format(0.49999999999999994, "0"), "0");
  EXPECT_EQ(Format(0, ""), "0");
  EXPECT_EQ(Format(-std::numeric_limits<Double>::infinity(), "000").substr(0, 5), "-1797");
}

TEST(TextTest, CountsCharacters) {
  struct Row {
    String text;
    Int32 length;
  };
  const Row rows[] = {
      {kWide, 4},
      {String("a\0b", 3), 3},
      {"\x80\xBF", 2},          // nothing to continue
      {"\xC3", 1},              // cut off
      {"\xE2\x82z", 3},         // cut off by another character
      {"\xC0\xAF", 2},          // too long for what it encodes
      {"\xE0\x80\xAF", 3},      // the same
      {"\xED\xA0\x80", 3},      // a surrogate
      {"\xF4\x90\x80\x80", 4},  // beyond the last character
      {"\xF4\x8F\xBF\xBF", 1},  // the last character
  };
  for (const Row& row : rows) {
    EXPECT_EQ(Len(row.text), row.length) << testing::PrintToString(row.text);
    EXPECT_EQ(LenB(row.text), static_cast<Int32>(row.text.size()));
    String joined;
    for (Int32 i = 1; i <= row.length; ++i)
      joined += Mid(row.text, i, 1);
    EXPECT_EQ(joined, row.text) << testing::PrintToString(row.text);
  }
}

TEST(TextTest, CutsByCharacters) {
  EXPECT_EQ(Left(kWide, 2), "a\xC3\xA4");
  EXPECT_EQ(Right(kWide, 2), "\xE2\x82\xAC\xF0\x9F\x8E\xA8");
  EXPECT_EQ(Mid(kWide, 2, 2), "\xC3\xA4\xE2\x82\xAC");
  EXPECT_EQ(Mid(kWide, 4), "\xF0\x9F\x8E\xA8");
  EXPECT_EQ(MidB(kWide, 3, 2), "\xA4\xE2");
  EXPECT_EQ(MidB(kWide, 10), "\xA8");
}

TEST(TextTest, CutsForAnyArgument) {
  for (const String& text : {String(), String("x"), kWide}) {
    for (const Int32 count : {kLeast, -1, 0}) {
      EXPECT_EQ(Left(text, count) + Right(text, count) + Mid(text, 1, count) + MidB(text, 1, count), "");
      EXPECT_EQ(Mid(text, count), text);
      EXPECT_EQ(MidB(text, count), text);
      EXPECT_EQ(Mid(text, count, 1), Left(text, 1));
    }
    EXPECT_EQ(Left(text, kMost), text);
    EXPECT_EQ(Right(text, kMost), text);
    EXPECT_EQ(Mid(text, kMost, kMost) + MidB(text, kMost, kMost), "");
    EXPECT_EQ(Mid(text, Len(text) + 1) + MidB(text, LenB(text) + 1), "");
  }
}

TEST(TextTest, TrimsAndRaises) {
  EXPECT_EQ(Trim(" \t\n\v\f\r a b \r\n"), "a b");
  EXPECT_EQ(Trim(" \n "), "");
  EXPECT_EQ(Trim(String(" \0 ", 3)), String(1, '\0'));
  EXPECT_EQ(Uppercase("az{`@[09AZ\xC3\xA4"), "AZ{`@[09AZ\xC3\xA4");
}

TEST(TextTest, ComparesWithoutCase) {
  EXPECT_TRUE(sameText("Hcol", "hCOL"));
  EXPECT_FALSE(sameText("abc", "ab"));
  EXPECT_FALSE(sameText("[", "{"));
  EXPECT_FALSE(sameText("\xC3\x84", "\xC3\xA4"));
}

TEST(TextTest, FindsPositions) {
  struct Row {
    Int32 start;
    String text, find;
    Int32 position;
  };
  const Row rows[] = {
      {2, "abcabc", "b", 2}, {3, "abcabc", "b", 5},         {6, "abcabc", "b", 0},   {1, "abcabc", "CA", 3},
      {1, "abc", "abcd", 0}, {1, "aab", "ab", 2},           {kLeast, "abc", "a", 1}, {kMost, "abc", "a", 0},
      {1, "abc", "", 0},     {1, kWide, "\xE2\x82\xAC", 3}, {1, kWide, "\xA4", 0},
  };
  for (const Row& row : rows) {
    EXPECT_EQ(InStr(row.start, row.text, row.find), row.position) << row.start << ' ' << row.text << ' ' << row.find;
  }
}

TEST(TextTest, SplitsIntoFields) {
  struct Row {
    String text, separator;
    std::vector<String> fields;
  };
  const Row rows[] = {
      {"", ",", {""}},
      {",a, b,", ",", {"", "a", " b", ""}},
      {"a--b---c", "--", {"a", "b", "-c"}},
      {"1x2X3", "x", {"1", "2", "3"}},
      {"a\xE2\x82\xACz", "\xE2\x82\xAC", {"a", "z"}},
      {"a,b", "", {"a,b"}},
  };
  for (const Row& row : rows) {
    const auto count = static_cast<Int32>(row.fields.size());
    EXPECT_EQ(CountFields(row.text, row.separator), count) << row.text;
    for (Int32 n = 1; n <= count; ++n) {
      EXPECT_EQ(NthField(row.text, row.separator, n), row.fields[static_cast<std::size_t>(n - 1)]) << row.text << n;
    }
    for (const Int32 n : {kLeast, 0, count + 1, kMost})
      EXPECT_EQ(NthField(row.text, row.separator, n), "") << n;
  }
}

TEST(TextTest, KeepsEveryByte) {
  for (Int32 byte = 0; byte <= 255; ++byte) {
    EXPECT_EQ(LenB(ChrB(byte)), 1);
    EXPECT_EQ(AscB(ChrB(byte)), byte);
  }
  EXPECT_EQ(AscB(ChrB(256 + 65) + "B"), 65);
  EXPECT_EQ(AscB(""), 0);
}

}  // namespace
}  // namespace tavrelkin
