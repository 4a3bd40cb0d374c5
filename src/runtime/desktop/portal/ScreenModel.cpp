#include "runtime/desktop/portal/ScreenModel.h"

#include <algorithm>
#include <atomic>
#include <cstring>

namespace tavrelkin {

namespace {

constexpr std::int64_t kBytesPerPixel = 4;

// Keeps the sum of an origin and a place within a frame in range, whatever the portal sends.
constexpr std::int64_t kFarthest = 1 << 30;

bool isSound(const ScreenFrame& frame) {
  const auto isSide = [](std::int64_t length) { return length > 0 && length <= ScreenModel::kLongestSide; };
  if (!isSide(frame.width) || !isSide(frame.height) || frame.width * frame.height > ScreenModel::kMostPixels)
    return false;
  const std::int64_t line = frame.width * kBytesPerPixel;
  const auto size = static_cast<std::int64_t>(frame.bytes.size());
  return frame.stride >= line && frame.stride <= size && (frame.height - 1) * frame.stride + line <= size;
}

// `frame` must be sound, and `target` must have room for its pixels.
void copyLines(const ScreenFrame& frame, std::uint8_t* target) {
  const auto line = static_cast<std::size_t>(frame.width * kBytesPerPixel);
  const auto stride = static_cast<std::size_t>(frame.stride);
  const auto height = static_cast<std::size_t>(frame.height);
  if (stride == line) {
    std::memcpy(target, frame.bytes.data(), line * height);
    return;
  }
  for (std::size_t row = 0; row < height; ++row)
    std::memcpy(target + row * line, frame.bytes.data() + row * stride, line);
}

// Computes unsigned, since the difference may not fit.
bool isWithin(std::int32_t from, std::int32_t length, std::int32_t at) {
  return static_cast<std::uint32_t>(at) - static_cast<std::uint32_t>(from) < static_cast<std::uint32_t>(length);
}

}  // namespace

// Rounds to the nearest, halves up. All places are rounded in the same way, so that two places that are a whole number
// of pixels apart stay so.
std::int32_t ScreenModel::Scale::times(std::int32_t length) const {
  const std::int64_t twice = 2 * frame * length + logical;
  const std::int64_t divisor = 2 * logical;
  const std::int64_t rounded = twice / divisor - (twice % divisor < 0 ? 1 : 0);
  return static_cast<std::int32_t>(std::clamp(rounded, -kFarthest, kFarthest));
}

ScreenModel::Scale ScreenModel::Monitor::scale() const {
  if (!hasFrame() || !stream.size) return {};
  return std::max(Scale{width, stream.size->width}, Scale{height, stream.size->height});
}

bool ScreenModel::Monitor::contains(ScreenPoint at) const {
  return isWithin(origin.x, width, at.x) && isWithin(origin.y, height, at.y);
}

std::uint32_t ScreenModel::Monitor::pixel(ScreenPoint at) const {
  const auto column = static_cast<std::size_t>(at.x - origin.x);
  const auto row = static_cast<std::size_t>(at.y - origin.y);
  const std::uint8_t* const c = bytes.get() + (row * static_cast<std::size_t>(width) + column) * kBytesPerPixel;
  const auto rgb = [](std::uint32_t r, std::uint32_t g, std::uint32_t b) { return r << 16 | g << 8 | b; };
  return order == ChannelOrder::bgr ? rgb(c[2], c[1], c[0]) : rgb(c[0], c[1], c[2]);
}

// A frame that a copy of the model still uses is not overwritten.
std::uint8_t* ScreenModel::Monitor::bytesToWrite(std::size_t count) {
  if (bytes.use_count() != 1) bytes = std::make_shared_for_overwrite<std::uint8_t[]>(count);
  // use_count() alone does not order the reads of a copy that was just destroyed before the writes to come.
  std::atomic_thread_fence(std::memory_order_acquire);
  return bytes.get();
}

ScreenModel::ScreenModel(const std::vector<CastStream>& streams) : monitors_(streams.size()) {
  for (std::size_t i = 0; i < streams.size(); ++i) {
    CastStream& stream = monitors_[i].stream = streams[i];
    if (stream.size && (stream.size->width <= 0 || stream.size->height <= 0)) stream.size.reset();
  }
  const auto isPlaced = [](const Monitor& monitor) { return monitor.stream.position && monitor.stream.size; };
  isSideBySide_ = monitors_.size() > 1 && !std::all_of(monitors_.begin(), monitors_.end(), isPlaced);
  arrange();
}

bool ScreenModel::putFrame(std::size_t stream, const ScreenFrame& frame) {
  if (stream >= monitors_.size() || !isSound(frame)) return false;
  Monitor& monitor = monitors_[stream];
  const auto width = static_cast<std::int32_t>(frame.width);
  const auto height = static_cast<std::int32_t>(frame.height);
  if (width != monitor.width || height != monitor.height) {
    monitor.bytes.reset();
    monitor.width = width;
    monitor.height = height;
    arrange();
  }
  monitor.order = frame.order;
  copyLines(frame, monitor.bytesToWrite(static_cast<std::size_t>(frame.width * frame.height * kBytesPerPixel)));
  return true;
}

bool ScreenModel::putPointer(std::size_t stream, ScreenPoint place) {
  if (stream >= monitors_.size()) return false;
  const Monitor& monitor = monitors_[stream];
  const std::int32_t width = monitor.hasFrame() ? monitor.width : kLongestSide;
  const std::int32_t height = monitor.hasFrame() ? monitor.height : kLongestSide;
  if (!isWithin(0, width, place.x) || !isWithin(0, height, place.y)) return false;
  pointerOwner_ = stream;
  pointerPlace_ = place;
  return true;
}

bool ScreenModel::hasFrames() const {
  return std::all_of(monitors_.begin(), monitors_.end(), [](const Monitor& monitor) { return monitor.hasFrame(); });
}

std::uint32_t ScreenModel::pixel(ScreenPoint at) {
  for (std::size_t tried = 0; tried < monitors_.size(); ++tried) {
    const Monitor& monitor = monitors_[lastFound_];
    if (monitor.contains(at)) return monitor.pixel(at);
    lastFound_ = (lastFound_ + 1) % monitors_.size();
  }
  return 0;
}

std::optional<ScreenPoint> ScreenModel::pointer() const {
  if (!pointerPlace_) return std::nullopt;
  const ScreenPoint origin = monitors_[pointerOwner_].origin;
  return ScreenPoint{origin.x + pointerPlace_->x, origin.y + pointerPlace_->y};
}

double ScreenModel::pointerScale() const {
  if (!pointerPlace_) return 1;
  const Scale scale = monitors_[pointerOwner_].scale();
  return static_cast<double>(scale.frame) / static_cast<double>(scale.logical);
}

void ScreenModel::arrange() {
  if (isSideBySide_) {
    std::int32_t left = 0;
    for (Monitor& monitor : monitors_) {
      monitor.origin = {left, 0};
      left += monitor.width;
    }
    return;
  }
  const auto isSmaller = [](const Monitor& a, const Monitor& b) { return a.scale() < b.scale(); };
  const auto largest = std::max_element(monitors_.begin(), monitors_.end(), isSmaller);
  const Scale scale = largest == monitors_.end() ? Scale{} : largest->scale();
  for (Monitor& monitor : monitors_) {
    const ScreenPoint at = monitor.stream.position.value_or(ScreenPoint{});
    monitor.origin = {scale.times(at.x), scale.times(at.y)};
  }
}

}  // namespace tavrelkin
