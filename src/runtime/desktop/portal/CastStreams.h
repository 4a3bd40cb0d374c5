#pragma once

#include <optional>
#include <vector>

#include <QVariant>

#include "runtime/desktop/portal/ScreenCast.h"

namespace tavrelkin {

// Parses the streams in the portal's answer, an array of PipeWire nodes with properties, a(ua{sv}). Nothing if `value`
// holds anything else, no stream, or more than kMostStreams. A position or size that is not of type (ii), or is beyond
// the reach of any desktop, counts as missing.
std::optional<std::vector<CastStream>> castStreams(const QVariant& value);

}  // namespace tavrelkin
