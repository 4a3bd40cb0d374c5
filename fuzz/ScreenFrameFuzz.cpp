// A desktop that shares its screen and sends any values. The input is a list of words of 4 bytes: the number of
// streams; for each stream, whether it has a position and a size, and their values; then frames and places of the
// pointer.

#include <algorithm>
#include <cstring>
#include <span>
#include <vector>

#include "fuzz/support/Target.h"
#include "runtime/desktop/portal/ScreenModel.h"

namespace tavrelkin {
namespace {

class Words {
 public:
  Words(const std::uint8_t* data, std::size_t size) : rest_(data, size) {}

  bool isEmpty() const { return rest_.size() < 4; }

  // The next word; 0 if none is left.
  std::int32_t next() {
    std::int32_t word = 0;
    const auto bytes = take(sizeof(word));
    if (bytes.size() == sizeof(word)) std::memcpy(&word, bytes.data(), sizeof(word));
    return word;
  }

  std::span<const std::uint8_t> take(std::size_t count) {
    const auto taken = rest_.first(std::min(count, rest_.size()));
    rest_ = rest_.subspan(taken.size());
    return taken;
  }

 private:
  std::span<const std::uint8_t> rest_;
};

std::vector<CastStream> streamsOf(Words& words) {
  std::vector<CastStream> streams(static_cast<std::size_t>(words.next() & 3));
  for (CastStream& stream : streams) {
    const std::int32_t has = words.next();
    if ((has & 1) != 0) stream.position = ScreenPoint{words.next(), words.next()};
    if ((has & 2) != 0) stream.size = CastStream::Size{words.next(), words.next()};
  }
  return streams;
}

// The last pixel of an accepted frame.
std::uint32_t lastPixel(const ScreenFrame& frame) {
  const auto at = static_cast<std::size_t>((frame.height - 1) * frame.stride + (frame.width - 1) * 4);
  const std::uint32_t ends[] = {frame.bytes[at], frame.bytes[at + 2]};
  const bool redFirst = frame.order == ChannelOrder::rgb;
  return ends[redFirst ? 0 : 1] << 16 | std::uint32_t{frame.bytes[at + 1]} << 8 | ends[redFirst ? 1 : 0];
}

std::uint32_t underPointer(ScreenModel& model) {
  const auto at = model.pointer();
  return at ? model.pixel(*at) : 0;
}

void putFrame(ScreenModel& model, Words& words) {
  const auto stream = static_cast<std::size_t>(words.next() & 3);
  ScreenFrame frame;
  frame.width = words.next();
  frame.height = words.next();
  frame.stride = words.next();
  frame.order = (words.next() & 1) != 0 ? ChannelOrder::rgb : ChannelOrder::bgr;
  frame.bytes = words.take(static_cast<std::size_t>(words.next() & 0xFFF));
  const std::uint32_t before = underPointer(model);
  if (!model.putFrame(stream, frame)) {
    require(underPointer(model) == before, "a refused frame changes nothing");
    return;
  }
  const ScreenPoint corner{static_cast<std::int32_t>(frame.width) - 1, static_cast<std::int32_t>(frame.height) - 1};
  require(model.putPointer(stream, corner), "the pointer can be anywhere in a frame");
  if (model.streamCount() == 1) require(underPointer(model) == lastPixel(frame), "a frame is read as it was put");
}

void putPointer(ScreenModel& model, Words& words) {
  const auto before = model.pointer();
  const auto stream = static_cast<std::size_t>(words.next() & 3);
  const ScreenPoint place{words.next(), words.next()};
  const bool taken = model.putPointer(stream, place);
  require(taken || model.pointer() == before, "a refused place changes nothing");
  require(model.pixel(place) <= 0xFFFFFF, "any place has a colour");
}

}  // namespace
}  // namespace tavrelkin

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using namespace tavrelkin;
  Words words(data, size);
  ScreenModel model(streamsOf(words));
  while (!words.isEmpty()) {
    if ((words.next() & 1) != 0)
      putFrame(model, words);
    else
      putPointer(model, words);
  }
  require(model.pointerScale() > 0, "a scale is a positive number");
  return 0;
}
