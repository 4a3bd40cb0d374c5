#pragma once

#include <memory>
#include <string_view>

#include <xcb/xcb.h>

#include "runtime/desktop/Offer.h"

namespace tavrelkin {

// Opens the data of an X11 selection, which another client owns, as an Offer. The reading follows section 2.4 of the
// ICCCM. The offer has its own connection, which closes with it, so a late answer is lost. Null if the display can't be
// reached.
//
// `name` is the selection's name, such as "CLIPBOARD". `time` is the server's timestamp of the user's action, or
// XCB_CURRENT_TIME.
std::unique_ptr<Offer> openSelection(std::string_view name, xcb_timestamp_t time);

}  // namespace tavrelkin
