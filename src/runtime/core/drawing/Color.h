#pragma once

#include <algorithm>
#include <cstdint>

#include "runtime/core/base/Number.h"

namespace tavrelkin {

// A colour with 8 bits per channel and no alpha: 0xRRGGBB, red in bits 16 to 23.
struct Color {
  std::uint32_t bits = 0;

  constexpr Color() = default;
  // Ignores the upper 8 bits of `rgb`.
  constexpr explicit Color(std::uint32_t rgb) : bits(rgb & 0xFFFFFF) {}

  // The channels, 0 to 255.
  constexpr Int32 red() const { return static_cast<Int32>((bits >> 16) & 255); }
  constexpr Int32 green() const { return static_cast<Int32>((bits >> 8) & 255); }
  constexpr Int32 blue() const { return static_cast<Int32>(bits & 255); }

  friend constexpr bool operator==(Color, Color) = default;
};

constexpr Color kBlack{0x000000};
constexpr Color kWhite{0xFFFFFF};

// A colour from its channels. A channel is clamped to 0 to 255.
constexpr Color RGB(Int32 red, Int32 green, Int32 blue) {
  constexpr auto channel = [](Int32 value) { return static_cast<std::uint32_t>(std::clamp(value, 0, 255)); };
  return Color{channel(red) << 16 | channel(green) << 8 | channel(blue)};
}

// A colour from hue, saturation and value by the hexcone model (A. R. Smith, "Color Gamut Transform Pairs", 1978), each
// from 0 to 1. A hue of 1 is red, as is 0. Each channel is rounded to the nearest byte. Arguments out of range are
// clamped; NaN counts as 0.
Color HSV(Double hue, Double saturation, Double value);

// A colour from cyan, magenta and yellow, each from 0 to 1: the complements of red, green and blue. Rounds and clamps
// as HSV does.
Color CMY(Double cyan, Double magenta, Double yellow);

// These functions return a fraction from 0 to 1, computed from the channels: saturation is (max - min) / max and 0 for
// black, value is max / 255, cyan is (255 - red) / 255.0. The hue of a grey is 0; a hue is always below 1.
Double readColorHue(Color c);
Double readColorSaturation(Color c);
Double readColorValue(Color c);
Double readColorCyan(Color c);
Double readColorMagenta(Color c);
Double readColorYellow(Color c);

}  // namespace tavrelkin
