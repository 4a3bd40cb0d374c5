#include <cstdint>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "runtime/desktop/x11/PixelFormat.h"

namespace tavrelkin {
namespace {

constexpr auto kLsb = ByteOrder::LsbFirst;
constexpr auto kMsb = ByteOrder::MsbFirst;

struct Row {
  std::string name;
  PixelLayout layout;
  std::vector<std::uint8_t> line;
  std::vector<std::uint32_t> expected;
};

constexpr PixelLayout kDepth15{16, 32, kLsb, 0x7C00, 0x03E0, 0x001F};
constexpr PixelLayout depth16(ByteOrder order) {
  return {16, 32, order, 0xF800, 0x07E0, 0x001F};
}
constexpr PixelLayout packed24(ByteOrder order) {
  return {24, 32, order, 0xFF0000, 0x00FF00, 0x0000FF};
}
constexpr PixelLayout depth24(ByteOrder order) {
  return {32, 32, order, 0xFF0000, 0x00FF00, 0x0000FF};
}
constexpr PixelLayout kBgr{32, 32, kLsb, 0x0000FF, 0x00FF00, 0xFF0000};
constexpr PixelLayout kDepth30{32, 32, kLsb, 0x3FF00000, 0x000FFC00, 0x000003FF};

// Scaled by hand: 16 of 31 is 131.6, 32 of 63 is 129.5, 1 of 31 is 8.2, 1 of 63 is 4.05, 15 of 31 is 123.4.
const std::vector<Row> kRows = {
    {"depth 16, low byte first", depth16(kLsb), {0x00, 0xF8, 0xE0, 0x07, 0x1F, 0x00}, {0xFF0000, 0x00FF00, 0x0000FF}},
    {"depth 16, high byte first", depth16(kMsb), {0xF8, 0x00, 0x07, 0xE0, 0x00, 0x1F}, {0xFF0000, 0x00FF00, 0x0000FF}},
    {"depth 16 rounds", depth16(kLsb), {0x10, 0x84, 0x21, 0x08}, {0x848284, 0x080408}},
    {"depth 15 ignores its highest bit", kDepth15, {0xFF, 0xFF, 0xEF, 0xBD}, {0xFFFFFF, 0x7B7B7B}},
    {"24 bits, low byte first", packed24(kLsb), {0x56, 0x34, 0x12, 0xBC, 0x9A, 0x78}, {0x123456, 0x789ABC}},
    {"24 bits, high byte first", packed24(kMsb), {0x12, 0x34, 0x56, 0x78, 0x9A, 0xBC}, {0x123456, 0x789ABC}},
    {"depth 24, low byte first", depth24(kLsb), {0x56, 0x34, 0x12, 0x00, 0, 1, 2, 0xFF}, {0x123456, 0x020100}},
    {"depth 24, high byte first", depth24(kMsb), {0x00, 0x12, 0x34, 0x56, 0xFF, 2, 1, 0}, {0x123456, 0x020100}},
    {"blue above red", kBgr, {0x56, 0x34, 0x12, 0xFF}, {0x563412}},
    // 0x3FFFFFFF, then red 0x201, green 0x003 and blue 0x3FC.
    {"depth 30", kDepth30, {0xFF, 0xFF, 0xFF, 0x3F, 0xFC, 0x0F, 0x10, 0x20}, {0xFFFFFF, 0x8000FF}},
};

TEST(PixelFormat, GivesColorsOfStoredPixels) {
  for (const Row& row : kRows) {
    SCOPED_TRACE(row.name);
    const auto format = PixelFormat::make(row.layout);
    ASSERT_TRUE(format);

    std::vector<std::uint32_t> single;
    for (std::size_t column = 0; column < row.expected.size(); ++column)
      single.push_back(format->rgb(row.line.data(), column));
    EXPECT_EQ(single, row.expected);

    std::vector<std::uint32_t> whole(row.expected.size());
    format->decode(row.line.data(), whole);
    EXPECT_EQ(whole, row.expected);
  }
}

TEST(PixelFormat, PadsScanlines) {
  struct {
    int bitsPerPixel, pad;
    std::size_t width, bytes;
  } const rows[] = {{16, 32, 1, 4}, {16, 16, 3, 6}, {24, 8, 3, 9}, {32, 64, 3, 16}, {16, 32, 105, 212}};
  for (const auto& row : rows) {
    const auto format = PixelFormat::make({row.bitsPerPixel, row.pad, kLsb, 0xF800, 0x07E0, 0x001F});
    ASSERT_TRUE(format);
    EXPECT_EQ(format->bytesPerLine(row.width), row.bytes) << row.bitsPerPixel << '/' << row.pad << '/' << row.width;
  }
}

TEST(PixelFormat, RefusesWhatItCannotRead) {
  struct {
    const char* name;
    PixelLayout layout;
  } const rows[] = {
      {"palette", {8, 32, kLsb, 0, 0, 0}},
      {"no masks", {32, 32, kLsb, 0, 0, 0}},
      {"64 bits", {64, 64, kLsb, 0xFF0000, 0xFF00, 0xFF}},
      {"mask with a gap", {32, 32, kLsb, 0xF70000, 0xFF00, 0xFF}},
      {"mask beyond the pixel", {16, 32, kLsb, 0x1F800, 0x07E0, 0x001F}},
      {"odd padding", {32, 12, kLsb, 0xFF0000, 0xFF00, 0xFF}},
  };
  for (const auto& row : rows)
    EXPECT_FALSE(PixelFormat::make(row.layout)) << row.name;
}

}  // namespace
}  // namespace tavrelkin
