#include "runtime/desktop/portal/ScreenStreams.h"

#include <algorithm>
#include <utility>

#include <QMetaObject>
#include <QPointer>

namespace tavrelkin {

std::unique_ptr<ScreenStreams> ScreenStreams::connect(ScreenCast cast, Events events, std::uint32_t mostFrames) {
  if (cast.streams.empty() || cast.streams.size() > kMostStreams) return nullptr;
  std::unique_ptr<ScreenStreams> streams(new ScreenStreams(cast.streams, std::move(events)));
  return streams->start(std::move(cast), mostFrames) ? std::move(streams) : nullptr;
}

ScreenStreams::ScreenStreams(const std::vector<CastStream>& streams, Events events)
    : model_(streams), statuses_(streams.size()), events_(std::move(events)) {}

bool ScreenStreams::start(ScreenCast cast, std::uint32_t mostFrames) {
  connection_ = PipeWireConnection::open(std::move(cast.pipeWire), [this] { ended(); });
  if (!connection_) return false;
  for (std::size_t i = 0; i < cast.streams.size(); ++i) {
    ScreenStream::Events events{
        .arrived = [this, i](const StreamArrival& arrival) { arrived(i, arrival); },
        .stateChanged = [this, i](StreamState state) { stateChanged(i, state); },
    };
    streams_.push_back(ScreenStream::connect(connection_->core(), cast.streams[i].node, mostFrames, std::move(events)));
    if (!streams_.back()) return false;
  }
  return connection_->start();
}

ScreenStreams::~ScreenStreams() {
  if (connection_) connection_->stop();
}

void ScreenStreams::setActive(bool active) {
  // The thread must take no buffer meanwhile.
  const PipeWireConnection::Lock connectionLock(*connection_);
  {
    const std::lock_guard lock(mutex_);
    if (active == std::exchange(active_, active)) return;
    for (StreamStatus& status : statuses_) {
      status.pausedUnasked = false;
      status.streaming = false;  // the requested pause may arrive after the stream is active again
      if (active) status.fresh = false;
    }
    paused_ = false;
    news_.paused.reset();
  }
  for (const auto& stream : streams_)
    stream->setActive(active);
}

void ScreenStreams::arrived(std::size_t stream, const StreamArrival& arrival) {
  {
    const std::lock_guard lock(mutex_);
    statuses_[stream].streaming = true;
    if (arrival.frame && model_.putFrame(stream, *arrival.frame)) statuses_[stream].fresh = true;
    const auto before = model_.pointer();
    if (arrival.pointer) model_.putPointer(stream, *arrival.pointer);
    if (model_.pointer() != before) lastPointerMove_ = Clock::now();
    news_.changed = true;
  }
  arrival_.notify_all();
  post();
}

void ScreenStreams::stateChanged(std::size_t stream, StreamState state) {
  if (state == StreamState::ended) {
    ended();
    return;
  }
  {
    const std::lock_guard lock(mutex_);
    StreamStatus& status = statuses_[stream];
    const bool wasStreaming = std::exchange(status.streaming, state == StreamState::streaming);
    status.pausedUnasked = active_ && !status.streaming && (wasStreaming || status.pausedUnasked);
    const bool paused =
        std::any_of(statuses_.begin(), statuses_.end(), [](const StreamStatus& each) { return each.pausedUnasked; });
    if (paused == std::exchange(paused_, paused)) return;
    news_.paused = paused;
  }
  post();
}

void ScreenStreams::ended() {
  {
    const std::lock_guard lock(mutex_);
    if (std::exchange(lost_, true)) return;
    news_.lost = true;
  }
  arrival_.notify_all();
  post();
}

void ScreenStreams::post() {
  {
    const std::lock_guard lock(mutex_);
    if (std::exchange(news_.posted, true)) return;
  }
  QMetaObject::invokeMethod(
      &context_, [this] { tell(); }, Qt::QueuedConnection);
}

// Works on copies and checks after each call, since any of the calls may destroy the object.
void ScreenStreams::tell() {
  News news;
  {
    const std::lock_guard lock(mutex_);
    news = std::exchange(news_, {});
  }
  const Events events = events_;
  const QPointer<QObject> alive(&context_);
  if (news.changed && events.changed) events.changed();
  if (alive && news.paused && events.paused) events.paused(*news.paused);
  if (alive && news.lost && events.lost) events.lost();
}

ScreenModel ScreenStreams::screen() const {
  const std::lock_guard lock(mutex_);
  return model_;
}

ScreenStreams::Clock::time_point ScreenStreams::lastPointerMove() const {
  const std::lock_guard lock(mutex_);
  return lastPointerMove_;
}

bool ScreenStreams::areFresh() const {
  return std::all_of(statuses_.begin(), statuses_.end(), [](const StreamStatus& status) { return status.fresh; });
}

bool ScreenStreams::waitForFrames(std::chrono::milliseconds longest) const {
  std::unique_lock lock(mutex_);
  arrival_.wait_for(lock, longest, [this] { return lost_ || areFresh(); });
  return !lost_ && areFresh();
}

void ScreenStreams::waitForPointer(std::chrono::milliseconds quiet, std::chrono::milliseconds longest) const {
  const auto start = Clock::now();
  std::unique_lock lock(mutex_);
  for (;;) {
    const bool hasMoved = lastPointerMove_ > start;
    const auto until = hasMoved ? std::min(lastPointerMove_ + quiet, start + longest) : start + longest;
    if (lost_ || Clock::now() >= until) return;
    arrival_.wait_until(lock, until);
  }
}

}  // namespace tavrelkin
