#include <array>
#include <cstdint>
#include <vector>

#include <gtest/gtest.h>

#include "runtime/desktop/x11/PixelFormat.h"

namespace tavrelkin {
namespace {

constexpr auto kLsb = ByteOrder::LsbFirst;
constexpr auto kMsb = ByteOrder::MsbFirst;

// Scaled by hand: 16 of 31 is 131.6, 32 of 63 is 129.5, 1 of 31 is 8.2, 1 of 63 is 4.05, 15 of 31 is 123.4. The pixels
// of depth 30 are 0x3FFFFFFF, then red 0x201, green 0x003 and blue 0x3FC.
TEST(PixelFormat, GivesColorsOfStoredPixels) {
  const struct {
    const char* name;
    PixelLayout layout;
    std::vector<std::uint8_t> line;
    std::vector<std::uint32_t> expected;
  } rows[] = {
      {"depth 16", {16, 32, kLsb, 0xF800, 0x7E0, 0x1F}, {0x10, 0x84, 0x21, 0x08}, {0x848284, 0x080408}},
      {"high byte first", {16, 32, kMsb, 0xF800, 0x7E0, 0x1F}, {0xF8, 0x00, 0x07, 0xE0}, {0xFF0000, 0x00FF00}},
      {"highest bit unused", {16, 32, kLsb, 0x7C00, 0x3E0, 0x1F}, {0xFF, 0xFF, 0xEF, 0xBD}, {0xFFFFFF, 0x7B7B7B}},
      {"24 bits", {24, 32, kLsb, 0xFF0000, 0xFF00, 0xFF}, {0x56, 0x34, 0x12, 3, 2, 1}, {0x123456, 0x010203}},
      {"depth 24", {32, 32, kLsb, 0xFF0000, 0xFF00, 0xFF}, {0x56, 0x34, 0x12, 0, 0, 1, 2, 255}, {0x123456, 0x020100}},
      {"high byte first", {32, 32, kMsb, 0xFF0000, 0xFF00, 0xFF}, {255, 0x12, 0x34, 0x56}, {0x123456}},
      {"blue above red", {32, 32, kLsb, 0xFF, 0xFF00, 0xFF0000}, {0x56, 0x34, 0x12, 0xFF}, {0x563412}},
      {"depth 30",
       {32, 32, kLsb, 0x3FF00000, 0xFFC00, 0x3FF},
       {0xFF, 0xFF, 0xFF, 0x3F, 0xFC, 0x0F, 0x10, 0x20},
       {0xFFFFFF, 0x8000FF}},
  };
  for (const auto& row : rows) {
    const auto format = PixelFormat::make(row.layout);
    ASSERT_TRUE(format) << row.name;
    std::vector<std::uint32_t> single;
    for (std::size_t column = 0; column < row.expected.size(); ++column)
      single.push_back(format->rgb(row.line.data(), column));
    EXPECT_EQ(single, row.expected) << row.name;
    std::vector<std::uint32_t> whole(row.expected.size());
    format->decode(row.line.data(), whole);
    EXPECT_EQ(whole, row.expected) << row.name;
  }
}

TEST(PixelFormat, PadsScanlines) {
  for (const auto& [bits, pad, width, bytes] :
       {std::array{16, 32, 1, 4}, {16, 16, 3, 6}, {24, 8, 3, 9}, {32, 64, 3, 16}, {16, 32, 105, 212}}) {
    const auto format = PixelFormat::make({bits, pad, kLsb, 0xF800, 0x07E0, 0x001F});
    EXPECT_EQ(format->bytesPerLine(static_cast<std::size_t>(width)), static_cast<std::size_t>(bytes)) << bits << pad;
  }
}

TEST(PixelFormat, RefusesWhatItCannotRead) {
  const struct {
    const char* name;
    PixelLayout layout;
  } rows[] = {
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
