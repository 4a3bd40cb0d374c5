#include "runtime/desktop/x11/RootCapture.h"

#include <algorithm>
#include <span>

#include "runtime/desktop/x11/Xcb.h"

namespace tavrelkin {

namespace {

constexpr std::int32_t kBlockWidth = 2 * RootCapture::kReachX + 1;
constexpr std::int32_t kBlockHeight = 2 * RootCapture::kReachY + 1;
constexpr std::int32_t kGreatestWidth = 2 * kBlockWidth;
constexpr std::int32_t kGreatestHeight = 2 * kBlockHeight;
constexpr std::size_t kSegmentBytes = std::size_t{kGreatestWidth} * kGreatestHeight * 4;

PixelRect between(std::int32_t left, std::int32_t top, std::int32_t right, std::int32_t bottom) {
  return {left, top, right - left, bottom - top};
}

PixelRect intersected(const PixelRect& a, const PixelRect& b) {
  return between(std::max(a.left, b.left), std::max(a.top, b.top), std::min(a.left + a.width, b.left + b.width),
                 std::min(a.top + a.height, b.top + b.height));
}

PixelRect united(const PixelRect& a, const PixelRect& b) {
  return between(std::min(a.left, b.left), std::min(a.top, b.top), std::max(a.left + a.width, b.left + b.width),
                 std::max(a.top + a.height, b.top + b.height));
}

// The block to capture for `at`: the area around it, together with the previous block if that is near enough.
PixelRect blockFor(ScreenPoint at, const PixelRect& before) {
  const PixelRect around{at.x - RootCapture::kReachX, at.y - RootCapture::kReachY, kBlockWidth, kBlockHeight};
  if (before.isEmpty()) return around;
  const PixelRect both = united(before, around);
  return both.width <= kGreatestWidth && both.height <= kGreatestHeight ? both : around;
}

// A rectangle on the root window in the protocol's types. No screen of X11 is larger than 32767 pixels.
struct ProtocolRect {
  explicit ProtocolRect(const PixelRect& r)
      : x(static_cast<std::int16_t>(r.left)),
        y(static_cast<std::int16_t>(r.top)),
        width(static_cast<std::uint16_t>(r.width)),
        height(static_cast<std::uint16_t>(r.height)) {}

  std::int16_t x, y;
  std::uint16_t width, height;
};

const xcb_visualtype_t* rootVisual(const xcb_screen_t& screen) {
  for (auto depths = xcb_screen_allowed_depths_iterator(&screen); depths.rem > 0; xcb_depth_next(&depths))
    for (auto visuals = xcb_depth_visuals_iterator(depths.data); visuals.rem > 0; xcb_visualtype_next(&visuals))
      if (visuals.data->visual_id == screen.root_visual) return visuals.data;
  return nullptr;
}

}  // namespace

std::optional<PixelFormat> rootPixelFormat(const xcb_setup_t& setup, const xcb_screen_t& screen) {
  const auto* visual = rootVisual(screen);
  if (!visual) return std::nullopt;
  const auto order = setup.image_byte_order == XCB_IMAGE_ORDER_MSB_FIRST ? ByteOrder::MsbFirst : ByteOrder::LsbFirst;

  for (auto formats = xcb_setup_pixmap_formats_iterator(&setup); formats.rem > 0; xcb_format_next(&formats))
    if (formats.data->depth == screen.root_depth)
      return PixelFormat::make({.bitsPerPixel = formats.data->bits_per_pixel,
                                .scanlinePad = formats.data->scanline_pad,
                                .order = order,
                                .redMask = visual->red_mask,
                                .greenMask = visual->green_mask,
                                .blueMask = visual->blue_mask});
  return std::nullopt;
}

RootCapture::RootCapture(xcb_connection_t* connection, const xcb_screen_t& screen, const PixelFormat& format)
    : connection_(connection),
      root_(screen.root),
      format_(format),
      rootRect_{0, 0, screen.width_in_pixels, screen.height_in_pixels},
      segment_(SharedSegment::make(connection, screen.root, kSegmentBytes)) {}

void RootCapture::setRootSize(std::int32_t width, std::int32_t height) {
  rootRect_ = {0, 0, width, height};
  drop();
}

void RootCapture::take(ScreenPoint at) {
  if (!isOnScreen(at)) return;
  const PixelRect wanted = blockFor(at, block_);
  drop();
  if (capture(intersected(wanted, rootRect_))) return;

  // The root may have become smaller, and the event that reports it may not have arrived yet.
  if (!askRootSize() || !isOnScreen(at)) return;
  const PixelRect onRoot = intersected(wanted, rootRect_);
  if (!capture(onRoot)) keepBlack(onRoot);
}

bool RootCapture::capture(const PixelRect& rect) {
  return segment_ ? captureShared(rect) : capturePlain(rect);
}

bool RootCapture::captureShared(const PixelRect& rect) {
  const ProtocolRect r(rect);
  const auto cookie = xcb_shm_get_image(connection_, root_, r.x, r.y, r.width, r.height, ~0U, XCB_IMAGE_FORMAT_Z_PIXMAP,
                                        segment_->id(), 0);
  if (!await(connection_, cookie, xcb_shm_get_image_reply)) return false;
  keep(rect, segment_->data());
  return true;
}

bool RootCapture::capturePlain(const PixelRect& rect) {
  const ProtocolRect r(rect);
  const auto cookie = xcb_get_image(connection_, XCB_IMAGE_FORMAT_Z_PIXMAP, root_, r.x, r.y, r.width, r.height, ~0U);
  const auto reply = await(connection_, cookie, xcb_get_image_reply);
  if (!reply) return false;

  const std::size_t needed = format_.bytesPerLine(r.width) * r.height;
  if (static_cast<std::size_t>(xcb_get_image_data_length(reply.get())) < needed) return false;
  keep(rect, xcb_get_image_data(reply.get()));
  return true;
}

void RootCapture::keep(const PixelRect& rect, const std::uint8_t* image) {
  const auto width = static_cast<std::size_t>(rect.width);
  const auto height = static_cast<std::size_t>(rect.height);
  const std::size_t bytesPerLine = format_.bytesPerLine(width);

  pixels_.resize(std::max(pixels_.size(), width * height));
  for (std::size_t row = 0; row < height; ++row)
    format_.decode(image + row * bytesPerLine, std::span(pixels_).subspan(row * width, width));
  block_ = rect;
}

void RootCapture::keepBlack(const PixelRect& rect) {
  pixels_.assign(static_cast<std::size_t>(rect.width) * static_cast<std::size_t>(rect.height), 0);
  block_ = rect;
}

bool RootCapture::askRootSize() {
  const auto reply = await(connection_, xcb_get_geometry(connection_, root_), xcb_get_geometry_reply);
  if (!reply) return false;
  setRootSize(reply->width, reply->height);
  return true;
}

}  // namespace tavrelkin
