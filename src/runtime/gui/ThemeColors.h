#pragma once

#include "runtime/drawing/Color.h"

// The platform's colours, for drawing controls that look at home.
namespace tavrelkin {

// The ground that controls stand on, and texts on it.
Color FillColor();
Color TextColor();

// The dark edge of a raised control; also texts of disabled controls.
Color DarkBevelColor();

// The shaded and the lit edge of a pressed or raised field.
Color DarkTingeColor();
Color LightTingeColor();

}  // namespace tavrelkin
