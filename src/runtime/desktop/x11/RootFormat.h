#pragma once

#include <optional>

#include <xcb/xcb.h>

#include "runtime/desktop/x11/PixelFormat.h"

namespace tavrelkin {

// How the server stores the pixels of the screen's root window in an image of the ZPixmap kind. Nothing where that is
// none of the kinds that PixelFormat knows.
std::optional<PixelFormat> rootPixelFormat(const xcb_setup_t& setup, const xcb_screen_t& screen);

}  // namespace tavrelkin
