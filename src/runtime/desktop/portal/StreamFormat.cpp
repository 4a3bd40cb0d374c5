#include "runtime/desktop/portal/StreamFormat.h"

#include <spa/buffer/buffer.h>
#include <spa/buffer/meta.h>
#include <spa/param/param.h>
#include <spa/param/video/format-utils.h>

#include "runtime/desktop/portal/StreamParameters.h"

namespace tavrelkin {

namespace {

// The size in bytes of a pointer image of `side` by `side` pixels, with its headers. The image is not used, but
// producers reserve room for it, each for a different size.
constexpr int cursorBytes(int side) {
  return static_cast<int>(sizeof(spa_meta_cursor) + sizeof(spa_meta_bitmap)) + side * side * 4;
}

}  // namespace

// One key and its value a line.
// clang-format off
void offerFormats(StreamParameters& parameters, std::uint32_t mostFrames) {
  constexpr std::uint32_t kLongestSide = ScreenModel::kLongestSide;
  const spa_rectangle usual{1920, 1080};
  const spa_rectangle least{1, 1};
  const spa_rectangle largest{kLongestSide, kLongestSide};
  const spa_fraction onChange{0, 1};
  const spa_fraction most{mostFrames, 1};

  parameters.add(SPA_TYPE_OBJECT_Format, SPA_PARAM_EnumFormat,
      SPA_FORMAT_mediaType, SPA_POD_Id(SPA_MEDIA_TYPE_video),
      SPA_FORMAT_mediaSubtype, SPA_POD_Id(SPA_MEDIA_SUBTYPE_raw),
      SPA_FORMAT_VIDEO_format,
      SPA_POD_CHOICE_ENUM_Id(5, SPA_VIDEO_FORMAT_BGRx,
                             SPA_VIDEO_FORMAT_BGRx, SPA_VIDEO_FORMAT_BGRA, SPA_VIDEO_FORMAT_RGBx,
                             SPA_VIDEO_FORMAT_RGBA),
      SPA_FORMAT_VIDEO_size, SPA_POD_CHOICE_RANGE_Rectangle(&usual, &least, &largest),
      SPA_FORMAT_VIDEO_framerate, SPA_POD_CHOICE_RANGE_Fraction(&onChange, &onChange, &most),
      SPA_FORMAT_VIDEO_maxFramerate, SPA_POD_CHOICE_RANGE_Fraction(&most, &onChange, &most));
}

void offerBuffers(StreamParameters& parameters) {
  parameters.add(SPA_TYPE_OBJECT_ParamBuffers, SPA_PARAM_Buffers,
      SPA_PARAM_BUFFERS_buffers, SPA_POD_CHOICE_RANGE_Int(3, 2, 4),
      SPA_PARAM_BUFFERS_dataType, SPA_POD_CHOICE_FLAGS_Int(1 << SPA_DATA_MemPtr | 1 << SPA_DATA_MemFd));
  parameters.add(SPA_TYPE_OBJECT_ParamMeta, SPA_PARAM_Meta,
      SPA_PARAM_META_type, SPA_POD_Id(SPA_META_Header),
      SPA_PARAM_META_size, SPA_POD_Int(int{sizeof(spa_meta_header)}));
  parameters.add(SPA_TYPE_OBJECT_ParamMeta, SPA_PARAM_Meta,
      SPA_PARAM_META_type, SPA_POD_Id(SPA_META_Cursor),
      SPA_PARAM_META_size, SPA_POD_CHOICE_RANGE_Int(cursorBytes(64), int{sizeof(spa_meta_cursor)}, cursorBytes(1024)));
}
// clang-format on

std::optional<StreamFormat> parseFormat(const spa_pod* pod) {
  std::uint32_t type = 0;
  std::uint32_t subtype = 0;
  spa_video_info_raw info{};
  if (!pod || spa_format_parse(pod, &type, &subtype) < 0 || type != SPA_MEDIA_TYPE_video ||
      subtype != SPA_MEDIA_SUBTYPE_raw || spa_format_video_raw_parse(pod, &info) < 0)
    return std::nullopt;

  StreamFormat format{.width = info.size.width, .height = info.size.height};
  switch (info.format) {
    case SPA_VIDEO_FORMAT_BGRx:
    case SPA_VIDEO_FORMAT_BGRA:
      format.order = ChannelOrder::bgr;
      return format;
    case SPA_VIDEO_FORMAT_RGBx:
    case SPA_VIDEO_FORMAT_RGBA:
      format.order = ChannelOrder::rgb;
      return format;
    default:
      return std::nullopt;
  }
}

}  // namespace tavrelkin
