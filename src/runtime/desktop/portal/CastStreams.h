#pragma once

#include <optional>
#include <vector>

#include <QVariant>

#include "runtime/desktop/portal/ScreenCast.h"

namespace tavrelkin {

// The streams that the portal answered: an array of nodes with properties, a(ua{sv}). Nothing if it is anything else,
// has no stream, or more than 64. A position or a size of another type than (ii), or farther out than any desktop
// reaches, counts as not given.
std::optional<std::vector<CastStream>> castStreams(const QVariant& value);

}  // namespace tavrelkin
