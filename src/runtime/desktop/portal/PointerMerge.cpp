#include "runtime/desktop/portal/PointerMerge.h"

namespace tavrelkin {

void PointerMerge::moved(std::uintptr_t window, ScreenPoint local, const std::optional<Stream>& stream, TimePoint now) {
  learn(stream, now);
  if (local_ && local_->window != window) window_.reset();
  // A press or a release at the same place does not end the pointer's rest.
  const bool rests = local_ && local_->window == window && local_->at == local;
  local_ = {window, local, rests ? local_->when : now};
}

void PointerMerge::forget() {
  local_.reset();
  window_.reset();
}

std::optional<ScreenPoint> PointerMerge::place(const std::optional<Stream>& stream, TimePoint now) {
  learn(stream, now);
  if (!local_ || !window_) return std::nullopt;
  return ScreenPoint{window_->x + local_->at.x, window_->y + local_->at.y};
}

// Each rest sets the window's place again, so that a wrong or outdated place is corrected.
void PointerMerge::learn(const std::optional<Stream>& stream, TimePoint now) {
  if (!local_ || !stream) return;
  // A mouse event comes before the stream knows of the movement. If the stream moves and no event comes, the pointer is
  // not in the window.
  if (stream->since - local_->when > kLatest) return forget();
  // If the stream has not changed since the event, it does not know the event's place yet.
  if (stream->since < local_->when || now - stream->since < kRest) return;
  window_ = {stream->place.x - local_->at.x, stream->place.y - local_->at.y};
}

}  // namespace tavrelkin
