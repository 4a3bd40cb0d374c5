#pragma once

#include "runtime/core/drawing/Color.h"

// The colours of the toolkit's controls, for drawing controls that match them. They are the same on every desktop.
namespace tavrelkin {

// The background of windows, and the texts on it.
Color FillColor();
Color TextColor();

// The dark edge of a raised control. Also the colour of texts in disabled controls.
Color DarkBevelColor();

// The dark and the light edge of a pressed or raised field.
Color DarkTingeColor();
Color LightTingeColor();

}  // namespace tavrelkin
