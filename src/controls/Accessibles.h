#pragma once

#include <memory>

#include "runtime/toolkit/Accessible.h"

namespace tavrelkin {

class zrClutPalette;
class zrColorBox;
class zrColorButton;
class zrColorCHBar;

// How the colour controls present themselves to assistive technologies; of use as long as the control lives.

// A slider that is called as its channel is.
std::unique_ptr<Accessible> accessibleOf(zrColorCHBar& bar);
// A button, with its colour as the description. A box whose clicks nobody answers is a picture.
std::unique_ptr<Accessible> accessibleOf(zrColorButton& button);
std::unique_ptr<Accessible> accessibleOf(zrColorBox& box);
// A list of colours, one of which can be selected.
std::unique_ptr<Accessible> accessibleOf(zrClutPalette& palette);

}  // namespace tavrelkin
