#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>

namespace tavrelkin {

enum class ByteOrder { LsbFirst, MsbFirst };

// How a display server stores the pixels of an image, in the terms of the X protocol: `bitsPerPixel` includes unused
// bits, each scanline is padded to a multiple of `scanlinePad` bits, and each mask says which bits of a pixel hold the
// channel.
struct PixelLayout {
  int bitsPerPixel = 32;
  int scanlinePad = 32;
  ByteOrder order = ByteOrder::LsbFirst;
  std::uint32_t redMask = 0xFF0000;
  std::uint32_t greenMask = 0x00FF00;
  std::uint32_t blueMask = 0x0000FF;
};

// Turns stored pixels into 0xRRGGBB. A channel with fewer than 8 bits is scaled and rounded, so that its greatest value
// gives 255. If a channel has more than 8 bits, only its upper 8 bits are used.
class PixelFormat {
 public:
  // Nothing if a pixel does not have 16, 24 or 32 bits, if a scanline is not padded to whole bytes, or if a mask is
  // empty, has gaps or lies outside the pixel. (A screen with a palette has empty masks.)
  static std::optional<PixelFormat> make(const PixelLayout& layout);

  // The length in bytes of a scanline of `width` pixels, with the padding.
  std::size_t bytesPerLine(std::size_t width) const;

  // The pixel in `column`, counted from 0, of the scanline that begins at `line`. The caller must check the bounds.
  std::uint32_t rgb(const std::uint8_t* line, std::size_t column) const;

  // Decodes the first pixels of a scanline into all of `rgbOut`: the same result as rgb() for each pixel, but faster.
  void decode(const std::uint8_t* line, std::span<std::uint32_t> rgbOut) const;

 private:
  struct Channel {
    std::uint32_t mask = 0;
    int shift = 0;                              // brings the masked bits, or the upper 8 of them, down to bit 0
    std::array<std::uint8_t, 256> toByte = {};  // from the shifted bits to 0..255
  };

  explicit PixelFormat(const PixelLayout& layout);
  static Channel channel(std::uint32_t mask);
  std::uint32_t number(const std::uint8_t* at) const;

  std::size_t bytesPerPixel_;
  std::size_t padBytes_;
  ByteOrder order_;
  bool isPlain_;  // a stored pixel is 0xRRGGBB with an unused upper byte
  Channel red_;
  Channel green_;
  Channel blue_;
};

}  // namespace tavrelkin
