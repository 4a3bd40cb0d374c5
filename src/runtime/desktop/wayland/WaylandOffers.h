#pragma once

#include <memory>

#include "runtime/desktop/Offer.h"

namespace tavrelkin {

// What other programs have on offer in a Wayland session. The toolkit's own reading waits a second for each part of
// what is sent and takes in all of it. Needs the toolkit's Wayland platform, and must exist before the first drop.
std::unique_ptr<OfferSource> makeWaylandOffers();

}  // namespace tavrelkin
