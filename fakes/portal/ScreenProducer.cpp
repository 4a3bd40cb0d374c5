#include "fakes/portal/ScreenProducer.h"

#include <cstring>
#include <stdexcept>

#include <spa/buffer/meta.h>
#include <spa/param/buffers.h>
#include <spa/param/video/format-utils.h>

#include "runtime/desktop/portal/StreamParameters.h"

namespace tavrelkin::test {

namespace {

constexpr int kCursorBytes = static_cast<int>(sizeof(spa_meta_cursor) + sizeof(spa_meta_bitmap)) + 384 * 384 * 4;

ScreenProducer& producerOf(void* data) {
  return *static_cast<ScreenProducer*>(data);
}

template <class Meta>
Meta* metaOf(spa_buffer& buffer, std::uint32_t type) {
  return static_cast<Meta*>(spa_buffer_find_meta_data(&buffer, type, sizeof(Meta)));
}

void paint(const ScreenProducer::Picture& picture, ScreenProducer::Size size, bool redFirst, std::uint8_t* at) {
  for (std::int32_t y = 0; y < size.height; ++y) {
    for (std::int32_t x = 0; x < size.width; ++x, at += 4) {
      const std::uint32_t rgb = picture(x, y);
      at[redFirst ? 0 : 2] = static_cast<std::uint8_t>(rgb >> 16);
      at[1] = static_cast<std::uint8_t>(rgb >> 8);
      at[redFirst ? 2 : 0] = static_cast<std::uint8_t>(rgb);
    }
  }
}

}  // namespace

ScreenProducer::ScreenProducer(const PipeWireDaemon& daemon, Size size, std::uint32_t format)
    : connection_(PipeWireConnection::open(daemon.connect(), [] {})),
      linker_(*connection_),
      stream_(pw_stream_new(connection_->core(), "monitor",
                            pw_properties_new(PW_KEY_MEDIA_CLASS, "Video/Source", nullptr))),
      size_(size),
      format_(format) {
  connect();
  connection_->start();
  const auto hasNode = [this] {
    const PipeWireConnection::Lock lock(*connection_);
    node_ = pw_stream_get_node_id(stream_);
    linker_.setProducer(node_);
    return pw_stream_get_state(stream_, nullptr) == PW_STREAM_STATE_PAUSED;
  };
  if (!waitUntil(hasNode)) throw std::runtime_error("PipeWire does not accept the producer.");
}

ScreenProducer::~ScreenProducer() {
  connection_->stop();
  spa_hook_remove(&hook_);
  pw_stream_destroy(stream_);
}

void ScreenProducer::connect() {
  events_.version = PW_VERSION_STREAM_EVENTS;
  events_.state_changed = [](void* data, pw_stream_state, pw_stream_state state, const char*) {
    producerOf(data).isReceived_ = state == PW_STREAM_STATE_STREAMING;
    producerOf(data).isSending_ = false;
  };
  events_.param_changed = [](void* data, std::uint32_t id, const spa_pod* param) {
    if (id == SPA_PARAM_Format && param) producerOf(data).offerBuffers(*param);
  };
  events_.trigger_done = [](void* data) { producerOf(data).isSending_ = false; };
  pw_stream_add_listener(stream_, &hook_, &events_, this);

  StreamParameters offer;
  addFormat(offer);
  constexpr auto kFlags = static_cast<pw_stream_flags>(PW_STREAM_FLAG_DRIVER | PW_STREAM_FLAG_MAP_BUFFERS);
  pw_stream_connect(stream_, PW_DIRECTION_OUTPUT, PW_ID_ANY, kFlags, offer.data(), offer.count());
}

void ScreenProducer::setSize(Size size) {
  const PipeWireConnection::Lock lock(*connection_);
  size_ = size;
  StreamParameters offer;
  addFormat(offer);
  pw_stream_update_params(stream_, offer.data(), offer.count());
}

void ScreenProducer::addFormat(StreamParameters& offer) const {
  const spa_rectangle size{static_cast<std::uint32_t>(size_.width), static_cast<std::uint32_t>(size_.height)};
  const spa_fraction onChange{0, 1};
  const spa_fraction least{1, 1};
  const spa_fraction most{60, 1};
  offer.add(SPA_TYPE_OBJECT_Format, SPA_PARAM_EnumFormat, SPA_FORMAT_mediaType, SPA_POD_Id(SPA_MEDIA_TYPE_video),
            SPA_FORMAT_mediaSubtype, SPA_POD_Id(SPA_MEDIA_SUBTYPE_raw), SPA_FORMAT_VIDEO_format, SPA_POD_Id(format_),
            SPA_FORMAT_VIDEO_size, SPA_POD_Rectangle(&size), SPA_FORMAT_VIDEO_framerate, SPA_POD_Fraction(&onChange),
            SPA_FORMAT_VIDEO_maxFramerate, SPA_POD_CHOICE_RANGE_Fraction(&most, &least, &most));
}

void ScreenProducer::offerBuffers(const spa_pod& format) {
  spa_video_info_raw info{};
  spa_format_video_raw_parse(&format, &info);
  linker_.formatChanged();
  agreedSize_ = {static_cast<std::int32_t>(info.size.width), static_cast<std::int32_t>(info.size.height)};

  StreamParameters offer;
  offer.add(SPA_TYPE_OBJECT_ParamBuffers, SPA_PARAM_Buffers, SPA_PARAM_BUFFERS_buffers,
            SPA_POD_CHOICE_RANGE_Int(16, 2, 16), SPA_PARAM_BUFFERS_blocks, SPA_POD_Int(1), SPA_PARAM_BUFFERS_size,
            SPA_POD_Int(agreedSize_.width * agreedSize_.height * 4), SPA_PARAM_BUFFERS_stride,
            SPA_POD_Int(agreedSize_.width * 4));
  offer.add(SPA_TYPE_OBJECT_ParamMeta, SPA_PARAM_Meta, SPA_PARAM_META_type, SPA_POD_Id(SPA_META_Header),
            SPA_PARAM_META_size, SPA_POD_Int(int{sizeof(spa_meta_header)}));
  offer.add(SPA_TYPE_OBJECT_ParamMeta, SPA_PARAM_Meta, SPA_PARAM_META_type, SPA_POD_Id(SPA_META_Cursor),
            SPA_PARAM_META_size, SPA_POD_Int(kCursorBytes));
  pw_stream_update_params(stream_, offer.data(), offer.count());
}

bool ScreenProducer::send(const Update& update, std::chrono::milliseconds longest) {
  return waitUntil([&] { return trySend(update); }, longest);
}

// A buffer that is sent before the last one has gone out overwrites it at the receiver.
bool ScreenProducer::trySend(const Update& update) {
  const PipeWireConnection::Lock lock(*connection_);
  if (!isReceived_ || !linker_.isReady() || isSending_ || agreedSize_ != size_) return false;
  pw_buffer* const buffer = pw_stream_dequeue_buffer(stream_);
  if (!buffer) return false;
  fill(*buffer->buffer, update);
  isSending_ = true;
  pw_stream_queue_buffer(stream_, buffer);
  pw_stream_trigger_process(stream_);
  return true;
}

void ScreenProducer::fill(spa_buffer& buffer, const Update& update) const {
  const bool hasPixels = static_cast<bool>(update.picture);
  const bool redFirst = format_ == SPA_VIDEO_FORMAT_RGBx || format_ == SPA_VIDEO_FORMAT_RGBA;
  if (hasPixels) paint(update.picture, size_, redFirst, static_cast<std::uint8_t*>(buffer.datas[0].data));

  spa_chunk& chunk = *buffer.datas[0].chunk;
  chunk.offset = update.offset.value_or(0);
  chunk.stride = update.stride.value_or(size_.width * 4);
  chunk.size = update.bytes.value_or(hasPixels ? static_cast<std::uint32_t>(size_.width * size_.height * 4) : 0);
  chunk.flags = hasPixels ? SPA_CHUNK_FLAG_NONE : SPA_CHUNK_FLAG_CORRUPTED;
  if (auto* const header = metaOf<spa_meta_header>(buffer, SPA_META_Header))
    header->flags = hasPixels ? 0 : SPA_META_HEADER_FLAG_CORRUPTED;
  if (auto* const cursor = metaOf<spa_meta_cursor>(buffer, SPA_META_Cursor)) {
    cursor->id = update.cursorId;
    cursor->position = {update.pointer.x, update.pointer.y};
  }
}

bool ScreenProducer::waitForReceiver(bool wanted, std::chrono::milliseconds longest) {
  const auto isWanted = [&] {
    const PipeWireConnection::Lock lock(*connection_);
    return isReceived_ == wanted;
  };
  return waitUntil(isWanted, longest);
}

}  // namespace tavrelkin::test
