#include <cmath>
#include <limits>
#include <span>

#include <gtest/gtest.h>

#include "runtime/text/Text.h"

namespace tavrelkin {
namespace {

constexpr Double kGreatest = std::numeric_limits<Double>::max();

struct Row {
  String text;
  Double value;
};

void check(std::span<const Row> rows) {
  for (const Row& row : rows)
    EXPECT_EQ(Val(row.text), row.value) << '"' << row.text.substr(0, 40) << '"';
}

TEST(ValTest, ReadsDecimalNumbers) {
  const Row rows[] = {
      {"0", 0},      {"42", 42}, {"-42", -42}, {"+42", 42},   {"007", 7},     {"255.128.0", 255.128}, {".5", 0.5},
      {"-.5", -0.5}, {"5.", 5},  {"5.x", 5},   {"1e3", 1000}, {"1E+3", 1000}, {"25e-1", 2.5},         {"0.1", 0.1},
  };
  check(rows);
  EXPECT_EQ(Val(" \t\r\n\v\f2147483648"), 2147483648.0);
}

TEST(ValTest, StopsAtWhatItCannotUse) {
  const Row rows[] = {
      {"1e", 1},        {"1e+", 1},  {"1e-x", 1}, {"1 2", 1},      {"1,5", 1},
      {"12px", 12},     {"0x10", 0}, {"1--2", 1}, {"1.2.3", 1.2},  {String("1\0x", 3), 1},
      {"3\xC3\xA4", 3}, {"1f", 1},   {"1&h2", 1}, {"2.5 e3", 2.5},
  };
  check(rows);
}

TEST(ValTest, GivesZeroForNoNumber) {
  const char* const texts[] = {
      "",     " ",   "-",    "+",   ".",   "-.",  "..", "e5", ".e5", "--5",   "+-5",   "- 5",    "x5",
      "#1.2", "inf", "-inf", "nan", "NaN", "INF", "&",  "&h", "h10", "& h10", "-&h10", "\xA0-5",
  };
  for (const char* text : texts)
    EXPECT_EQ(Val(text), 0) << '"' << text << '"';
}

TEST(ValTest, ReadsHexadecimalNumbers) {
  const Row rows[] = {
      {"  &HfF", 255},
      {"&h1G", 1},
      {"&hGG", 0},
      {"&h F", 0},
      {"&h-1", 0},
      {"&h1.8", 1},
      {"&h1e2", 482},
      {"&hFFFFFFFF", 4294967295.0},
      {"&h" + String(17, '0') + "F", 15},
      {"&h1" + String(16, '0'), std::ldexp(1, 64)},
      {"&h" + String(5000, 'F'), kGreatest},
  };
  check(rows);
}

TEST(ValTest, StaysFinite) {
  const String zeros(400, '0');
  const Row rows[] = {
      {"1e308", 1e308},
      {"1e309", kGreatest},
      {"-1e999", -kGreatest},
      {"1e" + String(400, '9'), kGreatest},
      {"1" + zeros + "e-400", 1},
      {"1" + zeros + "e-900", 0},
      {"1e-" + String(400, '9'), 0},
      {"." + zeros + "1e401", 1},
      {"0e999", 0},
  };
  check(rows);
  EXPECT_EQ(toInt32(Val("1e999")), std::numeric_limits<Int32>::max());
}

}  // namespace
}  // namespace tavrelkin
