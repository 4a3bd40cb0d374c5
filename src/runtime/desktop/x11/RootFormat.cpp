#include "runtime/desktop/x11/RootFormat.h"

namespace tavrelkin {

namespace {

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

}  // namespace tavrelkin
