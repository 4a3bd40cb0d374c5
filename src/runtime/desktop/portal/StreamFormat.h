#pragma once

#include <cstdint>
#include <optional>

#include "runtime/desktop/portal/ScreenModel.h"

struct spa_pod;

namespace tavrelkin {

class StreamParameters;

// Adds the formats that can be read, at up to `mostFrames` frames a second. Only ones that lie in plain memory.
void offerFormats(StreamParameters& parameters, std::uint32_t mostFrames);

// Adds what is wanted of the buffers once the format is known: that they are few, and say where the pointer is.
void offerBuffers(StreamParameters& parameters);

struct StreamFormat {
  ChannelOrder order = ChannelOrder::bgr;
  std::int64_t width = 0;
  std::int64_t height = 0;
};

// The format that the other side has chosen; nothing where it is none of those that were offered. `pod` may be null.
std::optional<StreamFormat> parseFormat(const spa_pod* pod);

}  // namespace tavrelkin
