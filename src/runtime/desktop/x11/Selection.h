#pragma once

#include <memory>
#include <string_view>

#include <xcb/xcb.h>

#include "runtime/desktop/Offer.h"

namespace tavrelkin {

// What the owner of an X11 selection, another client, offers there, by the protocol of the ICCCM, section 2.4. It is
// asked on a connection of the offer's own, which goes with it: an answer that comes later finds nobody. Null where the
// display can't be reached.
//
// `name` is that of the selection, as "CLIPBOARD"; `time` is the server's at what the user did, or XCB_CURRENT_TIME.
std::unique_ptr<Offer> openSelection(std::string_view name, xcb_timestamp_t time);

}  // namespace tavrelkin
