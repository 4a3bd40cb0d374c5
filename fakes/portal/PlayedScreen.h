#pragma once

#include <cstdint>

namespace tavrelkin::test {

// The colour, 0xRRGGBB, of a pixel of a played monitor in the frame with this number. Each pixel of a frame up to 2048
// by 2048 has a colour of its own.
constexpr std::uint32_t playedPixel(std::uint32_t frame, std::uint32_t monitor, std::int32_t x, std::int32_t y) {
  const auto column = static_cast<std::uint32_t>(x);
  const auto row = static_cast<std::uint32_t>(y);
  const std::uint32_t place = (column & 0xFF) << 16 | (row & 0xFF) << 8 | (column >> 8 & 7) << 3 | (row >> 8 & 7);
  return (place ^ (frame * 0x9E3779 + monitor * 0x3C6EF3)) & 0xFFFFFF;
}

}  // namespace tavrelkin::test
