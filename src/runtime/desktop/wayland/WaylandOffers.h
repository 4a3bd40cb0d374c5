#pragma once

#include <memory>

#include "runtime/desktop/Offer.h"

namespace tavrelkin {

// Makes the source of other programs' offers in a Wayland session. The toolkit's own reading waits up to a second for
// each part of the data and has no limit of size. Needs the toolkit's Wayland platform, and must exist before the first
// drop.
std::unique_ptr<OfferSource> makeWaylandOffers();

}  // namespace tavrelkin
