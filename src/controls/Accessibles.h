#pragma once

#include <memory>

#include "runtime/toolkit/Accessible.h"

namespace tavrelkin {

class ColorSwatch;
class zrClutPalette;
class zrColorCHBar;

// What the colour controls are to assistive technologies. Each result refers to its control, which must outlive it.

// A slider with the name of its channel.
std::unique_ptr<Accessible> accessibleOf(zrColorCHBar& bar);
// A button, with its colour as the description; a picture where nobody answers its clicks.
std::unique_ptr<Accessible> accessibleOf(ColorSwatch& swatch);
// A list of colours, one of which can be selected.
std::unique_ptr<Accessible> accessibleOf(zrClutPalette& palette);

}  // namespace tavrelkin
