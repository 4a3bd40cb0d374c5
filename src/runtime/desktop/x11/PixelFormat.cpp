#include "runtime/desktop/x11/PixelFormat.h"

#include <bit>
#include <cstring>

namespace tavrelkin {

namespace {

bool isContiguous(std::uint32_t mask) {
  if (mask == 0) return false;
  const std::uint32_t low = mask >> std::countr_zero(mask);
  return (low & (low + 1)) == 0;
}

bool isUsable(const PixelLayout& layout) {
  const int bits = layout.bitsPerPixel;
  if (bits != 16 && bits != 24 && bits != 32) return false;
  if (layout.scanlinePad < 8 || layout.scanlinePad % 8 != 0) return false;

  for (const std::uint32_t mask : {layout.redMask, layout.greenMask, layout.blueMask})
    if (!isContiguous(mask) || 32 - std::countl_zero(mask) > bits) return false;
  return true;
}

bool isPlain(const PixelLayout& layout) {
  constexpr ByteOrder own = std::endian::native == std::endian::little ? ByteOrder::LsbFirst : ByteOrder::MsbFirst;
  return layout.bitsPerPixel == 32 && layout.order == own && layout.redMask == 0xFF0000 &&
         layout.greenMask == 0x00FF00 && layout.blueMask == 0x0000FF;
}

}  // namespace

std::optional<PixelFormat> PixelFormat::make(const PixelLayout& layout) {
  if (!isUsable(layout)) return std::nullopt;
  return PixelFormat(layout);
}

PixelFormat::PixelFormat(const PixelLayout& layout)
    : bytesPerPixel_(static_cast<std::size_t>(layout.bitsPerPixel) / 8),
      padBytes_(static_cast<std::size_t>(layout.scanlinePad) / 8),
      order_(layout.order),
      isPlain_(isPlain(layout)),
      red_(channel(layout.redMask)),
      green_(channel(layout.greenMask)),
      blue_(channel(layout.blueMask)) {}

PixelFormat::Channel PixelFormat::channel(std::uint32_t mask) {
  const int bits = std::popcount(mask);
  const int kept = bits < 8 ? bits : 8;
  const std::uint32_t greatest = (1U << kept) - 1;

  Channel result{.mask = mask, .shift = std::countr_zero(mask) + bits - kept};
  for (std::uint32_t value = 0; value <= greatest; ++value)
    result.toByte[value] = static_cast<std::uint8_t>((value * 255 + greatest / 2) / greatest);
  return result;
}

std::size_t PixelFormat::bytesPerLine(std::size_t width) const {
  return (width * bytesPerPixel_ + padBytes_ - 1) / padBytes_ * padBytes_;
}

std::uint32_t PixelFormat::number(const std::uint8_t* at) const {
  std::uint32_t value = 0;
  for (std::size_t i = 0; i < bytesPerPixel_; ++i)
    value = value << 8 | at[order_ == ByteOrder::MsbFirst ? i : bytesPerPixel_ - 1 - i];
  return value;
}

std::uint32_t PixelFormat::rgb(const std::uint8_t* line, std::size_t column) const {
  const std::uint32_t value = number(line + column * bytesPerPixel_);
  const auto byteOf = [value](const Channel& c) -> std::uint32_t { return c.toByte[(value & c.mask) >> c.shift]; };
  return byteOf(red_) << 16 | byteOf(green_) << 8 | byteOf(blue_);
}

void PixelFormat::decode(const std::uint8_t* line, std::span<std::uint32_t> rgbOut) const {
  if (!isPlain_) {
    for (std::size_t column = 0; column < rgbOut.size(); ++column)
      rgbOut[column] = rgb(line, column);
    return;
  }
  std::memcpy(rgbOut.data(), line, rgbOut.size_bytes());
  for (std::uint32_t& pixel : rgbOut)
    pixel &= 0xFFFFFF;
}

}  // namespace tavrelkin
