#include "runtime/desktop/portal/ScreenStream.h"

#include <algorithm>
#include <utility>

#include <pipewire/pipewire.h>
#include <spa/buffer/buffer.h>
#include <spa/buffer/meta.h>

#include "runtime/desktop/portal/StreamParameters.h"

namespace tavrelkin {

namespace {

template <class Meta>
const Meta* metaOf(const spa_buffer& buffer, std::uint32_t type) {
  return static_cast<const Meta*>(spa_buffer_find_meta_data(&buffer, type, sizeof(Meta)));
}

// A buffer may report only the pointer. It then has no pixels, or meaningless ones.
bool hasPixels(const spa_buffer& buffer) {
  if (buffer.n_datas == 0 || !buffer.datas[0].data || !buffer.datas[0].chunk) return false;
  const spa_chunk& chunk = *buffer.datas[0].chunk;
  if (chunk.size == 0 || (static_cast<std::uint32_t>(chunk.flags) & SPA_CHUNK_FLAG_CORRUPTED) != 0) return false;
  const auto* const header = metaOf<spa_meta_header>(buffer, SPA_META_Header);
  return !header || (header->flags & SPA_META_HEADER_FLAG_CORRUPTED) == 0;
}

// With an id of 0 the place is stale: the pointer is not on this monitor.
void notePointer(const spa_buffer& buffer, StreamArrival& arrival) {
  const auto* const cursor = metaOf<spa_meta_cursor>(buffer, SPA_META_Cursor);
  if (cursor && cursor->id != 0) arrival.pointer = ScreenPoint{cursor->position.x, cursor->position.y};
}

}  // namespace

struct ScreenStream::Listener {
  static ScreenStream& streamOf(void* data) { return *static_cast<ScreenStream*>(data); }

  static void stateChanged(void* data, pw_stream_state, pw_stream_state state, const char*) {
    const auto& changed = streamOf(data).events_.stateChanged;
    if (state == PW_STREAM_STATE_STREAMING) changed(StreamState::streaming);
    if (state == PW_STREAM_STATE_PAUSED) changed(StreamState::paused);
    if (state == PW_STREAM_STATE_ERROR || state == PW_STREAM_STATE_UNCONNECTED) changed(StreamState::ended);
  }

  static void paramChanged(void* data, std::uint32_t id, const spa_pod* param) {
    if (id == SPA_PARAM_Format) streamOf(data).negotiate(param);
  }

  static void process(void* data) { streamOf(data).receive(); }

  pw_stream_events events{};
  spa_hook hook{};
};

std::unique_ptr<ScreenStream> ScreenStream::connect(pw_core* core, std::uint32_t node, std::uint32_t mostFrames,
                                                    Events events) {
  std::unique_ptr<ScreenStream> stream(new ScreenStream(core, std::move(events)));
  return stream->connect(node, mostFrames) ? std::move(stream) : nullptr;
}

ScreenStream::ScreenStream(pw_core* core, Events events)
    : events_(std::move(events)), listener_(std::make_unique<Listener>()) {
  pw_properties* const properties = pw_properties_new(PW_KEY_MEDIA_TYPE, "Video", PW_KEY_MEDIA_CATEGORY, "Capture",
                                                      PW_KEY_MEDIA_ROLE, "Screen", nullptr);
  stream_ = pw_stream_new(core, "screen", properties);
}

bool ScreenStream::connect(std::uint32_t node, std::uint32_t mostFrames) {
  if (!stream_) return false;
  listener_->events.version = PW_VERSION_STREAM_EVENTS;
  listener_->events.state_changed = &Listener::stateChanged;
  listener_->events.param_changed = &Listener::paramChanged;
  listener_->events.process = &Listener::process;
  pw_stream_add_listener(stream_, &listener_->hook, &listener_->events, this);

  StreamParameters offer;
  offerFormats(offer, mostFrames);
  // If the monitor is removed, PipeWire must not connect to another node instead, such as a camera.
  constexpr auto kFlags = static_cast<pw_stream_flags>(PW_STREAM_FLAG_AUTOCONNECT | PW_STREAM_FLAG_MAP_BUFFERS |
                                                       PW_STREAM_FLAG_DONT_RECONNECT);
  return pw_stream_connect(stream_, PW_DIRECTION_INPUT, node, kFlags, offer.data(), offer.count()) == 0;
}

ScreenStream::~ScreenStream() {
  if (!stream_) return;
  spa_hook_remove(&listener_->hook);
  pw_stream_destroy(stream_);
}

void ScreenStream::setActive(bool active) {
  pw_stream_set_active(stream_, active);
}

void ScreenStream::negotiate(const spa_pod* format) {
  format_ = parseFormat(format);
  if (!format_) return;
  StreamParameters offer;
  offerBuffers(offer);
  pw_stream_update_params(stream_, offer.data(), offer.count());
}

// The producer skips an update for each buffer that is kept. So all buffers are returned at once, and if several wait,
// only the newest frame is read.
void ScreenStream::receive() {
  StreamArrival arrival;
  pw_buffer* newest = nullptr;
  while (pw_buffer* next = pw_stream_dequeue_buffer(stream_)) {
    notePointer(*next->buffer, arrival);
    if (format_ && hasPixels(*next->buffer)) std::swap(next, newest);
    if (next) pw_stream_queue_buffer(stream_, next);
  }
  if (newest) arrival.frame = frameIn(*newest->buffer);
  events_.arrived(arrival);
  if (newest) pw_stream_queue_buffer(stream_, newest);
}

ScreenFrame ScreenStream::frameIn(const spa_buffer& buffer) const {
  const spa_data& data = buffer.datas[0];
  const std::uint32_t offset = std::min(data.chunk->offset, data.maxsize);
  const std::uint32_t size = std::min(data.chunk->size, data.maxsize - offset);
  const auto* const bytes = static_cast<const std::uint8_t*>(data.data) + offset;
  return {format_->order, format_->width, format_->height, data.chunk->stride, {bytes, size}};
}

}  // namespace tavrelkin
