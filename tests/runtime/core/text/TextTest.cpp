#include <cmath>
#include <limits>
#include <span>
#include <vector>

#include <gtest/gtest.h>

#include "runtime/core/text/Text.h"

namespace tavrelkin {
namespace {

constexpr Int32 kLeast = std::numeric_limits<Int32>::min();
constexpr Int32 kMost = std::numeric_limits<Int32>::max();
constexpr Double kGreatest = std::numeric_limits<Double>::max();

// Characters of 1, 2, 3 and 4 bytes.
const String kWide = "a\xC3\xA4\xE2\x82\xAC\xF0\x9F\x8E\xA8";

TEST(TextTest, WritesNumbers) {
  EXPECT_EQ(Hex(0x1FA) + " " + Hex(-1), "1FA FFFFFFFF");
  String all;
  for (const Double value : {7.0, 1234.0, 0.4, 2.5, -7.0, -0.5, -0.4, std::nan("")})
    all += Format(value, "000") + " ";
  EXPECT_EQ(all, "007 1234 000 003 -007 -001 000 000 ");
  EXPECT_EQ(Format(0.49999999999999994, "0"), "0");
  EXPECT_EQ(Format(-std::numeric_limits<Double>::infinity(), "000").substr(0, 5), "-1797");
}

TEST(TextTest, CountsAndCutsCharacters) {
  const struct {
    String text;
    Int32 length;
  } rows[] = {
      {"", 0},
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
  for (const auto& [text, length] : rows) {
    SCOPED_TRACE(testing::PrintToString(text));
    EXPECT_EQ(Len(text), length);
    EXPECT_EQ(LenB(text), static_cast<Int32>(text.size()));
    String joined;
    for (Int32 i = 1; i <= length; ++i) {
      joined += Mid(text, i, 1);
      EXPECT_EQ(Left(text, i), joined);
      EXPECT_EQ(Left(text, i) + Right(text, length - i), text);
      EXPECT_EQ(Mid(text, i + 1), Right(text, length - i));
    }
    EXPECT_EQ(joined, text);
    for (const Int32 count : {kLeast, -1, 0}) {
      EXPECT_EQ(Left(text, count) + Right(text, count) + Mid(text, 1, count) + MidB(text, 1, count), "");
      EXPECT_EQ(Mid(text, count) + MidB(text, count), text + text);
    }
    EXPECT_EQ(Left(text, kMost) + Right(text, kMost), text + text);
    EXPECT_EQ(Mid(text, kMost, kMost) + MidB(text, kMost, kMost) + MidB(text, LenB(text) + 1), "");
  }
  EXPECT_EQ(MidB(kWide, 3, 2), "\xA4\xE2");
}

TEST(TextTest, TrimsRaisesAndComparesAsciiOnly) {
  EXPECT_EQ(Trim(" \t\n\v\f\r a b \r\n") + Trim(" \n "), "a b");
  EXPECT_EQ(Trim(String(" \0 ", 3)), String(1, '\0'));
  EXPECT_EQ(Uppercase("az{`@[09AZ\xC3\xA4"), "AZ{`@[09AZ\xC3\xA4");
  EXPECT_TRUE(sameText("Hcol", "hCOL"));
  EXPECT_FALSE(sameText("abc", "ab") || sameText("[", "{") || sameText("\xC3\x84", "\xC3\xA4"));
}

TEST(TextTest, FindsPositions) {
  const struct {
    Int32 start;
    String text, find;
    Int32 position;
  } rows[] = {
      {2, "abcabc", "b", 2}, {3, "abcabc", "b", 5}, {1, "abcabc", "CA", 3},        {1, "abc", "abcd", 0},
      {1, "aab", "ab", 2},   {kLeast, "a", "a", 1}, {kMost, "abc", "a", 0},        {1, "abc", "", 0},
      {1, kWide, "\xAC", 0}, {4, kWide, "a", 0},    {1, kWide, "\xE2\x82\xAC", 3},
  };
  for (const auto& row : rows)
    EXPECT_EQ(InStr(row.start, row.text, row.find), row.position) << row.start << ' ' << row.text << ' ' << row.find;
}

TEST(TextTest, SplitsIntoFields) {
  const struct {
    String text, separator;
    std::vector<String> fields;
  } rows[] = {
      {"", ",", {""}},
      {",a, b,", ",", {"", "a", " b", ""}},
      {"a--b---c", "--", {"a", "b", "-c"}},
      {"1x2X3", "x", {"1", "2", "3"}},
      {"a,b", "", {"a,b"}},
  };
  for (const auto& [text, separator, fields] : rows) {
    const Int32 count = CountFields(text, separator);
    std::vector<String> found;
    for (Int32 n = 1; n <= count; ++n)
      found.push_back(NthField(text, separator, n));
    EXPECT_EQ(found, fields);
    for (const Int32 n : {kLeast, 0, count + 1, kMost})
      EXPECT_EQ(NthField(text, separator, n), "") << text << n;
  }
}

TEST(TextTest, KeepsEveryByte) {
  for (Int32 byte = 0; byte <= 255; ++byte)
    EXPECT_EQ(AscB(ChrB(byte + 256) + "B"), byte);
  EXPECT_EQ(AscB(""), 0);
}

TEST(TextTest, ReadsNumbersAsFarAsTheyGo) {
  struct Row {
    String text;
    Double value;
  };
  const Row plain[] = {
      {"007", 7},      {"-42", -42},   {"+42", 42}, {"25.12.0", 25.12}, {"-.5", -0.5}, {"5.x", 5},
      {"1E+3", 1000},  {"25e-1", 2.5}, {"1e-x", 1}, {"1 2", 1},         {"1,5", 1},    {"0x10", 0},
      {"  &HfF", 255}, {"&h1G2", 1},   {"&h-1", 0}, {"&h1e2", 482},     {"0e999", 0},  {"3\xC3", 3},
  };
  const String zeros(400, '0');
  const String nines(400, '9');
  const Row extreme[] = {
      {String("1\0x", 3), 1},
      {" \t\r\n\v\f2147483648", 2147483648.0},
      {"&hFFFFFFFF", 4294967295.0},
      {"1E309", kGreatest},
      {"-1e999", -kGreatest},
      {"&h1" + String(16, '0'), std::ldexp(1, 64)},
      {"&h" + String(5000, 'F'), kGreatest},
      {"1e" + nines, kGreatest},
      {"1e-" + nines, 0},
      {"1" + zeros + "e-400", 1},
      {"1" + zeros + "e-900", 0},
      {"." + zeros + "1e401", 1},
  };
  for (const std::span<const Row> rows : {std::span<const Row>(plain), std::span<const Row>(extreme)})
    for (const Row& row : rows)
      EXPECT_EQ(Val(row.text), row.value) << row.text.substr(0, 40);
  for (const char* text : {"",    " ",    "-",   ".",   "-.", "..", ".e5",  "--5", "+-5",   "- 5",   "x5",    "#1.2",
                           "inf", "-inf", "nan", "INF", "&",  "&h", "&hGG", "h10", "& h10", "-&h10", "\xA0-5"})
    EXPECT_EQ(Val(text), 0) << text;
  EXPECT_EQ(toInt32(Val("1e999")), kMost);
}

}  // namespace
}  // namespace tavrelkin
