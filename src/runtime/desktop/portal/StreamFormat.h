#pragma once

#include <cstdint>
#include <optional>

#include "runtime/desktop/portal/ScreenModel.h"

struct spa_pod;

namespace tavrelkin {

class StreamParameters;

// Adds the formats that can be read, with at most `mostFrames` frames a second. All of them use plain memory.
void offerFormats(StreamParameters& parameters, std::uint32_t mostFrames);

// Adds the requirements for the buffers, which are negotiated after the format: a few buffers in plain memory, with the
// pointer's place as metadata.
void offerBuffers(StreamParameters& parameters);

struct StreamFormat {
  ChannelOrder order = ChannelOrder::bgr;
  std::int64_t width = 0;
  std::int64_t height = 0;
};

// The format that the other side has chosen; nothing if it is not one of the offered formats. `pod` may be null.
std::optional<StreamFormat> parseFormat(const spa_pod* pod);

}  // namespace tavrelkin
