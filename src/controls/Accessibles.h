#pragma once

#include <memory>

#include "runtime/toolkit/Accessible.h"

namespace tavrelkin {

class ColorSwatch;
class zrClutPalette;
class zrColorCHBar;

// How assistive technologies see the colour controls. Each result refers to its control, which must outlive it.

// A slider with the name of its channel.
std::unique_ptr<Accessible> accessibleOf(zrColorCHBar& bar);
// A button, or a picture if its clicks have no effect; the description is the colour.
std::unique_ptr<Accessible> accessibleOf(ColorSwatch& swatch);
// A list of colours, one of which can be selected.
std::unique_ptr<Accessible> accessibleOf(zrClutPalette& palette);

}  // namespace tavrelkin
